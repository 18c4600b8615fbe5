#pragma once

#include "engine/datastructures/fixedarray.h"
#include "engine/render/billboard.h"
#include "gs/render/particle/particlepart.h"
#include "gs/render/particle/pipelineeffectid.h"

#include <memory>

namespace Vorn {

class ParticleSimulationDefinition;

// Which frame of a texture animation a new particle begins with.
enum class TextureAnimationSpawnType : std::int32_t { Invalid = -1, FirstFrame, SequentialFrames, RandomFrames };

inline constexpr EnumRow<TextureAnimationSpawnType> kTextureAnimationSpawnTypeRows[] = {
    {TextureAnimationSpawnType::FirstFrame, u"FirstFrame"},
    {TextureAnimationSpawnType::SequentialFrames, u"SequentialFrames"},
    {TextureAnimationSpawnType::RandomFrames, u"RandomFrames"}};
inline constexpr auto kTextureAnimationSpawnTypeTexts =
    TextsInOrder<TextureAnimationSpawnType::RandomFrames>(kTextureAnimationSpawnTypeRows);
template <>
inline constexpr EnumTable kEnumTable<TextureAnimationSpawnType> = MakeTable("TextureAnimationSpawnType",
                                                                             kTextureAnimationSpawnTypeTexts);

// The part of an effect that creates particles. The fields that all emitters share come first; the derived classes add
// the shape of the source. Values out of order or range are reported, kept and written back.
class ParticleEmitter : public ParticlePart {
public:
    // Numbered by the rows of the table in particleemitterkinds.cpp.
    enum class Type : std::int32_t { Invalid = -1 };
    static const EnumTable kTypes;

    // Null for a type without a class.
    static std::unique_ptr<ParticleEmitter> Make(ParticleSimulationDefinition& definition, Type type);

    // A new emitter is named after its type.
    ParticleEmitter(ParticleSimulationDefinition& _definition, Type _type);

    void Fields(FieldIo& io) override;

    Type GetType() const { return type; }
    // The square that the anchor gives a particle; not stored.
    const BillboardQuad& GetBillboardQuad() const { return billboardQuad; }

    // Also renames the emitter in the lists of the affectors that are attached to it.
    void SetName(std::u16string_view newName) override;

    // An anchor above 8 fires its check and is kept.
    void SetBillboardAnchor(std::uint32_t anchor);

    // Cuts the names of textures, mesh and texture animation down to name and extension.
    void StripFilePaths();

private:
    using FileName = FixedString<256>;

    void EmissionFields(FieldIo& io);
    void StartFields(FieldIo& io);
    void PlacementFields(FieldIo& io);
    void AppearanceFields(FieldIo& io);
    void TextureFields(FieldIo& io);
    void RotationFields(FieldIo& io);

    ParticleSimulationDefinition& definition;
    const Type type;

    // Particles a second.
    float emitRate = 1.0f;
    Bool hasInfiniteEmitCount = true;
    std::uint32_t maxEmitCount = 1;
    Bool hasEmitIntervals = false;
    float emitIntervalRunDuration = 0.0f;
    float emitIntervalWaitDuration = 0.0f;

    float particleLifeTime = 3.0f;
    float particleMinStartLinearSpeed = 0.0f;
    float particleMaxStartLinearSpeed = 0.0f;
    float particleMinStartAngularSpeed = 0.0f;
    float particleMaxStartAngularSpeed = 0.0f;
    float particleMinStartRotation = 0.0f;
    float particleMaxStartRotation = 0.0f;
    float particleStartMass = 1.0f;
    Color particleStartColor = {1.0f, 1.0f, 1.0f, 1.0f};
    float particleWidth = 1.0f;
    float particleHeight = 1.0f;
    FileName meshName;

    Vector3 position;
    Matrix33 orientation = {{{{1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}}}};
    float rotateAboutForward = 0.0f;
    float rotateAboutUp = 0.0f;
    float rotateAboutCross = 0.0f;

    std::uint32_t billboardAnchor = 0;
    BillboardQuad billboardQuad;
    std::uint32_t particleFacing = 0;
    PipelineEffectID pipelineEffectID = PipelineEffectID::Invalid;
    Bool areParticlesAttached = true;

    FixedArray<FileName, 2> textureNames;
    FileName textureAnimationName;
    TextureAnimationSpawnType textureAnimationSpawnType = TextureAnimationSpawnType::RandomFrames;
    float textureAnimationOnParticleFPS = 0.0f;

    Bool particlesRotate = false;
    std::uint32_t meshParticleRotationAxisType = 0;
    // Not a unit vector, on purpose.
    Vector3 meshParticleRotationAxis = {0.0f, 0.1f, 0.0f};
    std::uint32_t rotationDirectionType = 0;
};

} // namespace Vorn
