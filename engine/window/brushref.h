#pragma once

#include "engine/archive/namedreference.h"

namespace Vorn {

class Brush;

// A brush by name. Files hold the name alone.
class BrushRef : public NamedReference<100, NameKind::Brush> {
public:
    BrushRef() : BrushRef(false) {}

    // Whether the image is loaded when the brush is first shown.
    bool IsLoadOnDemand() const { return isLoadOnDemand; }

protected:
    explicit BrushRef(bool _isLoadOnDemand) : isLoadOnDemand(_isLoadOnDemand) {}

private:
    bool isLoadOnDemand;
    // The brush of that name and its place in its set, once they are looked up.
    [[maybe_unused]] std::int32_t resolvedIndex = -1;
    [[maybe_unused]] Brush* resolvedBrush = nullptr;
};

// A brush whose image is loaded when it is first shown.
class LoadOnDemandBrushRef : public BrushRef {
public:
    LoadOnDemandBrushRef() : BrushRef(true) {}
};

} // namespace Vorn
