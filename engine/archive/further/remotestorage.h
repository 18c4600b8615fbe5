#pragma once

#include "engine/archive/filearchivesystem.h"

#include <cstddef>
#include <memory>

namespace Vorn {

// The remote storage that SteamFileArchive uses: an area of memory and a current place in it, which moves as archives
// read and write. The storage decides what to do with the area.
class RemoteStorage : public ArchiveMaker {
public:
    static constexpr std::size_t kAreaSize = 31457280;

    // An archive of the Steam form on the area, which it clears.
    FileArchive* Make(bool hasFloatBits) override;

    // The start of the area of kAreaSize bytes.
    virtual unsigned char* GetArea() = 0;
    // The current place, from the start of the area, in bytes.
    virtual std::size_t GetPlace() const = 0;
    virtual void MovePlace(std::size_t bytes) = 0;
    virtual void Rewind() = 0;
};

// Remote storage that keeps its area in this process alone.
class MemoryStorage final : public RemoteStorage {
public:
    MemoryStorage() : area(new unsigned char[kAreaSize]()) {}

    unsigned char* GetArea() override { return area.get(); }
    std::size_t GetPlace() const override { return place; }
    void MovePlace(std::size_t bytes) override { place += bytes; }
    void Rewind() override { place = 0; }

private:
    std::unique_ptr<unsigned char[]> area;
    std::size_t place = 0;
};

} // namespace Vorn
