#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace Vorn {

struct DestinationOptions {
    // A file that holds the bytes already gets the present time all the same.
    bool touch = false;
    // What was written has reached the disk at the end.
    bool sync = false;
};

// Writes files whole or not at all: the bytes go to a temporary file in the same folder, which then takes the place of
// the destination. Whatever fails and whenever the process is killed, the destination holds what it held or all of the
// new bytes. A file that holds the bytes already is left alone.
//
// The temporary file of a new destination has no name until it is whole, where the system can do that. That of another
// has one name and is locked while it is written: a second run waits for the lock, and one that is not locked was left
// by a run that was killed, and is removed.
//
// Folders that are not there are made, a link is followed, permissions are kept, and what is no regular file is written
// to directly. Each thread needs its own writer, and no two may write to one destination at a time.
class DestinationWriter {
public:
    explicit DestinationWriter(const DestinationOptions& options);
    ~DestinationWriter();
    DestinationWriter(const DestinationWriter&) = delete;
    DestinationWriter& operator=(const DestinationWriter&) = delete;

    // Makes the bytes the content of a file. Returns an empty text, or the reason why that failed.
    std::string Write(const std::string& name, std::string_view bytes);

    // To be called at the end. Returns an empty text, or the reason why a folder did not reach the disk.
    std::string Finish();

private:
    class Folder;

    const DestinationOptions options;
    // The folder of the last destination.
    std::unique_ptr<Folder> folder;
};

} // namespace Vorn
