#include "gs/render/particle/particlesimulationdefinition.h"

#include "engine/core/abnormalend.h"
#include "tests/support/archivetest.h"

namespace Vorn {

namespace {

constexpr auto kPoint = static_cast<ParticleEmitter::Type>(0);
constexpr auto kRing = static_cast<ParticleEmitter::Type>(2);
constexpr auto kDrag = static_cast<ParticleAffector::Type>(1);

class ParticleSimulationDefinitionTest : public ArchiveTest {
protected:
    ParticleSimulationDefinition definition;
};

TEST_F(ParticleSimulationDefinitionTest, AffectorsFollowTheEmittersTheyName) {
    ParticleAffector& affector = definition.AddAffector(kDrag);
    affector.AddAttachedEmitter(u"ring");
    affector.AddAttachedEmitter(u"Ring");
    definition.AddEmitter(kPoint);
    definition.AddEmitter(kRing);
    EXPECT_FALSE(affector.IsAttachedTo(0));
    EXPECT_TRUE(affector.IsAttachedTo(1));

    EXPECT_TRUE(affector.RemoveAttachedEmitter(u"Ring"));
    EXPECT_FALSE(affector.RemoveAttachedEmitter(u"Ring"));
    EXPECT_FALSE(affector.IsAttachedTo(1));
    EXPECT_EQ(affector.FindAttachedEmitter(u"ring"), 0);
}

TEST_F(ParticleSimulationDefinitionTest, AffectorsFollowTheEmittersOfAFile) {
    definition.AddEmitter(kPoint);
    definition.AddEmitter(kRing);
    definition.AddAffector(kDrag).AddAttachedEmitter(u"Ring");
    const std::string written = Written(FileArchiveType::Text, [&](FieldIo& io) { definition.Fields(io); });
    ParticleSimulationDefinition read;
    Read(std::string(kTextHeader) + written, [&](FieldIo& io) { read.Fields(io); });
    ASSERT_EQ(read.GetAffectorCount(), 1);
    EXPECT_FALSE(read.GetAffector(0).IsAttachedTo(0));
    EXPECT_TRUE(read.GetAffector(0).IsAttachedTo(1));
}

TEST_F(ParticleSimulationDefinitionTest, RenamingAnEmitterMovesItToTheEndOfTheLists) {
    ParticleEmitter& emitter = definition.AddEmitter(kPoint);
    ParticleAffector& attached = definition.AddAffector(kDrag);
    attached.AddAttachedEmitter(u"Point");
    attached.AddAttachedEmitter(u"Other");
    ParticleAffector& unattached = definition.AddAffector(kDrag);

    emitter.SetName(u"Flare");
    EXPECT_EQ(attached.FindAttachedEmitter(u"Point"), -1);
    EXPECT_EQ(attached.FindAttachedEmitter(u"Other"), 0);
    EXPECT_EQ(attached.FindAttachedEmitter(u"Flare"), 1);
    EXPECT_TRUE(attached.IsAttachedTo(0));
    EXPECT_EQ(unattached.FindAttachedEmitter(u"Flare"), -1);
    EXPECT_FALSE(unattached.IsAttachedTo(0));

    definition.Clear();
    EXPECT_EQ(definition.GetEmitterCount(), 0);
}

TEST_F(ParticleSimulationDefinitionTest, AnchorsChooseTheQuad) {
    ParticleEmitter& emitter = definition.AddEmitter(kPoint);
    const auto expectQuad = [&](float left, float top, float right, float bottom) {
        const BillboardQuad& quad = emitter.GetBillboardQuad();
        EXPECT_EQ(std::make_tuple(quad.left, quad.top, quad.right, quad.bottom),
                  std::make_tuple(left, top, right, bottom));
    };
    expectQuad(-0.5f, 0.5f, 0.5f, -0.5f);
    emitter.SetBillboardAnchor(5);
    expectQuad(-1.0f, 0.0f, 0.0f, -1.0f);
    emitter.SetBillboardAnchor(8);
    expectQuad(0.0f, 1.0f, 1.0f, 0.0f);
    EXPECT_EQ(TakeReports(), Reports());
    emitter.SetBillboardAnchor(9);
    expectQuad(0.0f, 0.0f, 0.0f, 0.0f);
    EXPECT_EQ(TakeReports(), Reports{Check("false")});
}

// Thrown instead of ending the process.
struct End {};

class CaughtEnd final : public EndGuard {
public:
    void BeforeAbnormalEnd() override { throw End(); }
};

TEST_F(ParticleSimulationDefinitionTest, APartTooManyWithoutAClassFiresBothChecks) {
    const CaughtEnd caughtEnd;
    EXPECT_THROW(definition.AddEmitter(ParticleEmitter::Type::Invalid), End);
    EXPECT_THROW(definition.AddAffector(ParticleAffector::Type::Invalid), End);
    EXPECT_EQ(TakeReports(), Reports({Check("false"), Check("false")}));
    definition.Clear();
    for (int i = 0; i < ParticleSimulationDefinition::kMaxEmitters; ++i) {
        definition.AddEmitter(kPoint);
    }
    for (int i = 0; i < ParticleSimulationDefinition::kMaxAffectors; ++i) {
        definition.AddAffector(kDrag);
    }
    EXPECT_THROW(definition.AddEmitter(ParticleEmitter::Type::Invalid), End);
    EXPECT_THROW(definition.AddAffector(ParticleAffector::Type::Invalid), End);
    const std::string full = Check("m_CurrentSize < MAX_SIZE");
    EXPECT_EQ(TakeReports(), Reports({Check("false"), full, Check("false"), full}));
}

TEST_F(ParticleSimulationDefinitionTest, IsNamedAfterAFile) {
    definition.SetFileName(u"C:\\art/Engine.Glow.particle");
    EXPECT_EQ(definition.GetStem().View(), u"Engine.Glow");
    EXPECT_EQ(definition.GetFileName().View(), u"C:\\art/Engine.Glow.particle");
}

} // namespace

} // namespace Vorn
