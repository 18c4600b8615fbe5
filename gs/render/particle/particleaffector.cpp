#include "gs/render/particle/particleaffector.h"

#include "gs/render/particle/appendorend.h"
#include "gs/render/particle/particlesimulationdefinition.h"

namespace Vorn {

void ParticleAffector::Fields(FieldIo& io) {
    NameFields(io);
    TimeFields(io);
    io.Bool(u"UseYoungParticleAffectThreshold", useYoungParticleAffectThreshold);
    io.Float(u"YoungParticleAffectThreshold", youngParticleAffectThreshold);
    io.Bool(u"UseOldParticleAffectThreshold", useOldParticleAffectThreshold);
    io.Float(u"OldParticleAffectThreshold", oldParticleAffectThreshold);
    io.Bool(u"AffectAttachedParticles", affectAttachedParticles);
    AttachmentFields(io);
}

// Names may be longer in files than in the list; they are cut when they are added.
void ParticleAffector::AttachmentFields(FieldIo& io) {
    const std::int32_t count = io.Count({u"numAttachedEmitters", ListRule::Fatal, attachedEmitterNames.Capacity()},
                                        attachedEmitterNames.Size());
    io.ReadEntries(count, [&](std::int32_t i) {
        FixedString<256> emitterName;
        if (io.Writing()) {
            emitterName.Assign(attachedEmitterNames[i].View());
        }
        io.CutTo(Name::kCapacity);
        io.String(u"attachedEmitterName", emitterName);
        if (io.Reading()) {
            AppendAttachedEmitter(emitterName.View());
        }
    });
}

void ParticleAffector::UpdateAttachedEmitters() {
    for (int i = 0; i < kMaxAttachedEmitters; ++i) {
        isAttached[i] =
            i < definition.GetEmitterCount() && FindAttachedEmitter(definition.GetEmitter(i).GetName().View()) >= 0;
    }
}

void ParticleAffector::AppendAttachedEmitter(std::u16string_view emitterName) {
    Name kept;
    kept.Assign(emitterName);
    AppendOrEnd(attachedEmitterNames) = kept;
}

void ParticleAffector::AddAttachedEmitter(std::u16string_view emitterName) {
    AppendAttachedEmitter(emitterName);
    UpdateAttachedEmitters();
}

bool ParticleAffector::RemoveAttachedEmitter(std::u16string_view emitterName) {
    const int place = FindAttachedEmitter(emitterName);
    if (place < 0) {
        return false;
    }
    attachedEmitterNames.RemoveAt(place);
    UpdateAttachedEmitters();
    return true;
}

int ParticleAffector::FindAttachedEmitter(std::u16string_view emitterName) const {
    for (int i = 0; i < attachedEmitterNames.Size(); ++i) {
        if (attachedEmitterNames[i].View() == emitterName) {
            return i;
        }
    }
    return -1;
}

} // namespace Vorn
