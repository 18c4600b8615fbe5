#include "gs/render/particle/particleemitter.h"

#include "engine/core/report.h"
#include "engine/file/path.h"
#include "gs/render/particle/particlesimulationdefinition.h"

namespace Vorn {

namespace {

constexpr std::uint32_t kMissingNumber = 0xFFFFFFFF;
constexpr std::uint32_t kParticleFacingCount = 3;

// A number that becomes -1 if its key is missing, instead of keeping its default.
void UintOrMissing(FieldIo& io, Label label, std::uint32_t& value) {
    if (io.Reading()) {
        value = kMissingNumber;
    }
    io.Uint(label, value);
}

} // namespace

ParticleEmitter::ParticleEmitter(ParticleSimulationDefinition& _definition, Type _type)
    : definition(_definition), type(_type) {
    ParticleEmitter::SetName(EnumToText(static_cast<std::int32_t>(type), kTypes));
    SetBillboardAnchor(0);
}

void ParticleEmitter::Fields(FieldIo& io) {
    NameFields(io);
    EmissionFields(io);
    StartFields(io);
    PlacementFields(io);
    TimeFields(io);
    AppearanceFields(io);
    TextureFields(io);
    RotationFields(io);
}

void ParticleEmitter::EmissionFields(FieldIo& io) {
    io.Float(u"EmitRate", emitRate);
    io.Bool(u"HasInfiniteEmitCount", hasInfiniteEmitCount);
    io.Uint(u"MaxEmitCount", maxEmitCount);
    io.Bool(u"hasEmitIntervals", hasEmitIntervals);
    io.Float(u"emitIntervalRunDuration", emitIntervalRunDuration);
    io.Float(u"emitIntervalWaitDuration", emitIntervalWaitDuration);
}

void ParticleEmitter::StartFields(FieldIo& io) {
    io.Float(u"ParticleLifeTime", particleLifeTime);
    io.Float(u"ParticleMinStartLinearSpeed", particleMinStartLinearSpeed);
    io.Float(u"ParticleMaxStartLinearSpeed", particleMaxStartLinearSpeed);
    io.Float(u"ParticleMinStartAngularSpeed", particleMinStartAngularSpeed);
    io.Float(u"ParticleMaxStartAngularSpeed", particleMaxStartAngularSpeed);
    io.Float(u"ParticleMinStartRotation", particleMinStartRotation);
    io.Float(u"ParticleMaxStartRotation", particleMaxStartRotation);
    if (io.Reading()) {
        CheckAssert(particleMinStartAngularSpeed <= particleMaxStartAngularSpeed,
                    "m_ParticleMinStartAngularSpeed <= m_ParticleMaxStartAngularSpeed");
        CheckAssert(particleMinStartLinearSpeed <= particleMaxStartLinearSpeed,
                    "m_ParticleMinStartLinearSpeed <= m_ParticleMaxStartLinearSpeed");
    }
    io.Float(u"ParticleStartMass", particleStartMass);
    io.Color(u"ParticleStartColor", particleStartColor);
    io.Float(u"ParticleWidth", particleWidth);
    io.Float(u"ParticleHeight", particleHeight);
    io.String(u"MeshName", meshName, NameKind::Mesh);
}

void ParticleEmitter::PlacementFields(FieldIo& io) {
    io.Vector3(u"Position", position);
    io.Matrix33(u"Orientation", orientation);
    io.Float(u"RotateAboutForward", rotateAboutForward);
    io.Float(u"RotateAboutUp", rotateAboutUp);
    io.Float(u"RotateAboutCross", rotateAboutCross);
}

void ParticleEmitter::AppearanceFields(FieldIo& io) {
    UintOrMissing(io, u"BillboardAnchor", billboardAnchor);
    if (io.Reading()) {
        SetBillboardAnchor(billboardAnchor);
    }
    UintOrMissing(io, u"ParticleFacing", particleFacing);
    if (io.Reading()) {
        CheckAssert(particleFacing < kParticleFacingCount,
                    "m_ParticleFacing > -1 && m_ParticleFacing < ParticleFacing::EnumSize");
    }
    io.Enum(u"PipelineEffectID", pipelineEffectID);
    io.Bool(u"AreParticlesAttached", areParticlesAttached);
}

// A file may hold any number of names: each surplus one fires the check of the array and is dropped.
void ParticleEmitter::TextureFields(FieldIo& io) {
    const std::int32_t elementCount =
        io.Count({u"numTextures", ListRule::Exact, textureNames.Size()}, textureNames.Size());
    CheckElementCount(elementCount, textureNames.Size());
    io.ReadEntries(elementCount, [&](std::int32_t i) { io.String(u"textureName", textureNames[i]); });
    io.String(u"textureAnimationName", textureAnimationName);
    io.Enum(u"textureAnimationSpawnType", textureAnimationSpawnType);
    io.Float(u"textureAnimationOnParticleFPS", textureAnimationOnParticleFPS);
}

void ParticleEmitter::RotationFields(FieldIo& io) {
    io.Bool(u"ParticlesRotate", particlesRotate);
    UintOrMissing(io, u"MeshParticleRotationAxisType", meshParticleRotationAxisType);
    io.Vector3(u"MeshParticleRotationAxis", meshParticleRotationAxis);
    UintOrMissing(io, u"RotationDirectionType", rotationDirectionType);
}

void ParticleEmitter::SetName(std::u16string_view newName) {
    const Name oldName = GetName();
    ParticlePart::SetName(newName);
    definition.RenameAttachedEmitter(oldName.View(), GetName().View());
}

void ParticleEmitter::SetBillboardAnchor(std::uint32_t anchor) {
    billboardAnchor = anchor;
    billboardQuad = QuadOfAnchor(anchor);
}

void ParticleEmitter::StripFilePaths() {
    for (FileName* stored : {&textureNames[0], &textureNames[1], &meshName, &textureAnimationName}) {
        const FileName path = *stored;
        stored->Assign(FileNameOf(path.View()));
    }
}

} // namespace Vorn
