#pragma once

#include "engine/archive/namedreference.h"

namespace Vorn {

class Brush;

// A brush by name; the game resolves it to the brush itself.
class BrushRef : public NamedReference<100, NameKind::Brush> {
public:
    BrushRef() : BrushRef(false) {}

    bool IsLoadOnDemand() const { return isLoadOnDemand; }

protected:
    explicit BrushRef(bool _isLoadOnDemand) : isLoadOnDemand(_isLoadOnDemand) {}

private:
    bool isLoadOnDemand;
    [[maybe_unused]] std::int32_t resolvedIndex = -1;
    [[maybe_unused]] Brush* resolvedBrush = nullptr;
};

// A brush whose image the game loads when it is first shown.
class LoadOnDemandBrushRef : public BrushRef {
public:
    LoadOnDemandBrushRef() : BrushRef(true) {}
};

} // namespace Vorn
