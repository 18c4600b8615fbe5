#pragma once

#include "engine/archive/filearchivesystem.h"
#include "engine/core/core.h"
#include "engine/core/reporting.h"
#include "engine/file/filesystem.h"
#include "engine/render/mesh/meshsystem.h"
#include "engine/render/texture/texturesystem.h"
#include "tests/support/tempfolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace Vorn {

using Reports = std::vector<std::string>;

// UTF-8 of a text, for messages and comparisons.
std::string Utf8(std::u16string_view text);

// The name under which a path is opened.
std::u16string NameOf(const std::filesystem::path& path);

// A failed check as TakeReports returns it.
std::string Check(std::string_view expression);

// Has a core of its own and collects all reports, in order. A report that the test does not expect fails it.
class EngineTest : public testing::Test, public ReportHandler {
protected:
    EngineTest();
    void TearDown() override;
    void Handle(const char* file, int line, std::u16string_view text, bool isFailure) override;

    // What was reported since the last call.
    Reports TakeReports() { return std::exchange(collected, {}); }

    std::optional<Core> core;

private:
    Reports collected;
};

// An engine test with a folder for its files.
class FileTest : public EngineTest {
protected:
    std::u16string NameIn(std::string_view fileName) const { return NameOf(folder.Path() / fileName); }
    std::u16string Put(std::string_view fileName, std::string_view bytes) const;

    TempFolder folder;
};

} // namespace Vorn
