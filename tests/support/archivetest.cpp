#include "tests/support/archivetest.h"

#include "tests/support/casesource.h"

namespace Vorn {

std::string ArchiveTest::Written(FileArchiveType form, const Fields& fields, bool hasFloatBits) {
    FileArchive* archive = core->fileArchiveSystem.OpenForWrite(NameIn("written"), hasFloatBits, form);
    FieldIo io(*archive, FieldIo::Direction::Write);
    fields(io);
    core->fileArchiveSystem.Close(archive);
    const std::string header = CurrentHeader(form == FileArchiveType::Binary);
    std::string bytes = ReadBytes(folder.Path() / "written").value_or("");
    EXPECT_TRUE(bytes.starts_with(header));
    return bytes.substr(header.size());
}

std::uint32_t ArchiveTest::Read(std::string_view bytes, const Fields& fields, bool hasFloatBits) {
    FileArchive* archive = core->fileArchiveSystem.OpenForRead(Put("source", bytes), hasFloatBits);
    FieldIo io(*archive, FieldIo::Direction::Read);
    fields(io);
    const std::uint32_t checkSum = archive->GetCheckSum();
    core->fileArchiveSystem.Close(archive);
    return checkSum;
}

} // namespace Vorn
