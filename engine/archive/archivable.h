#pragma once

#include "engine/archive/archive.h"

namespace Vorn {

// A group of fields that an archive nests under one label.
class Archivable {
public:
    virtual ~Archivable() = default;

    // Reads with a version number from the caller, which most records ignore.
    virtual void Read(Archive& archive, std::int32_t version);
    virtual void Read(Archive& archive) = 0;
    virtual void Write(Archive& archive) const = 0;
};

// What a text names, where it is the name of something.
enum class NameKind { None, Entity, Particle, Brush, Mesh, Texture, Sound, StringId };

// A value that stores itself as one entry under the label that its owner passes.
class SingleLineArchivable {
public:
    virtual ~SingleLineArchivable() = default;

    virtual NameKind GetNameKind() const { return NameKind::None; }

    // Which classes of things of that kind the name may be of, one bit for each row of their table; 0 for any.
    virtual std::uint64_t GetNameClasses() const { return 0; }

    virtual void Read(Label label, Archive& archive) = 0;
    virtual void Write(Label label, Archive& archive) const = 0;
};

} // namespace Vorn
