#pragma once

#include "engine/archive/archivable.h"
#include "engine/string/fixedstring.h"

namespace Vorn {

// A reference by name alone, stored as one text of at most N - 1 code units under the owner's label. A missing label
// leaves the name unchanged; no name is looked up, and an empty one refers to nothing.
template <int N, NameKind kind = NameKind::None>
class NamedReference : public SingleLineArchivable {
public:
    void Read(Label label, Archive& archive) override { archive.Read(label, name.Buffer().m_Buffer, N); }
    void Write(Label label, Archive& archive) const override { archive.Write(label, name.Units(), N); }

    NameKind GetNameKind() const override { return kind; }

    const FixedString<N>& GetName() const { return name; }
    void SetName(std::u16string_view _name) { name.Assign(_name); }

protected:
    FixedString<N> name;
};

} // namespace Vorn
