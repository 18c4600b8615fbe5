#include "tests/support/enginetest.h"

#include "engine/string/utf8.h"

namespace Vorn {

std::string Utf8(std::u16string_view text) {
    std::string bytes(text.size() * kMaxUtf8PerUnit, '\0');
    bytes.resize(static_cast<std::size_t>(EncodeUtf8(bytes.data(), text) - bytes.data()));
    return bytes;
}

std::u16string NameOf(const std::filesystem::path& path) {
    return path.u16string();
}

std::string Check(std::string_view expression) {
    return "assert! [" + std::string(expression) + "]";
}

EngineTest::EngineTest() {
    g_Reporting = {};
    g_Reporting.reportHandler = this;
    core.emplace();
    core->textureSystem.SetNameOnlyTextures(true);
}

void EngineTest::TearDown() {
    core.reset();
    EXPECT_EQ(TakeReports(), Reports()) << "nobody asked for these reports";
    g_Reporting = {};
}

void EngineTest::Handle(const char*, int line, std::u16string_view text, bool) {
    constexpr int kNoPosition = -1;
    collected.push_back(line == kNoPosition ? Utf8(text) : Check(Utf8(text)));
}

std::u16string FileTest::Put(std::string_view fileName, std::string_view bytes) const {
    WriteBytes(folder.Path() / fileName, bytes);
    return NameIn(fileName);
}

} // namespace Vorn
