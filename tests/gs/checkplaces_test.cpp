#include "gs/render/particle/particlesimulationdefinition.h"
#include "tests/support/archivetest.h"

#include <filesystem>

namespace Vorn {

namespace {

// The source files that checks name, which people search for.
class CheckPlacesTest : public ArchiveTest {
protected:
    void Handle(const char* file, int, std::u16string_view text, bool) override {
        places.emplace_back(std::filesystem::path(file).replace_extension().string(), Utf8(text));
    }

    void ExpectPlace(const char* file, const char* expression) {
        EXPECT_EQ(places, Places({{file, expression}}));
        places.clear();
    }

    using Places = std::vector<std::pair<std::string, std::string>>;

    Places places;
};

TEST_F(CheckPlacesTest, AreThoseOfTheClassesThatPromise) {
    Mesh::ArchivablePoint point;
    const std::string bytes(4 + 12 + 36, '\0');
    Read(std::string(kBinaryHeader) + bytes, [&](FieldIo& io) { point.Fields(io); });
    ExpectPlace("engine/render/mesh/mesh", "m_Orientation.IsLeftHandAndNormalized()");

    ParticleSimulationDefinition definition;
    ParticleEmitter& emitter = definition.AddEmitter(static_cast<ParticleEmitter::Type>(0));
    std::string written = Written(FileArchiveType::Text, [&](FieldIo& io) { io.Record(u"Emitter", emitter); });
    written.replace(written.find("numTextures 2"), 13, "numTextures 1");
    written.erase(written.find("\ttextureName \"\"\r\n"), 18);
    Read(std::string(kTextHeader) + written, [&](FieldIo& io) { io.Record(u"Emitter", emitter); });
    ExpectPlace("engine/archive/archive", "elementCount == data->Size()");
    emitter.SetBillboardAnchor(9);
    ExpectPlace("engine/render/billboard", "false");
}

} // namespace

} // namespace Vorn
