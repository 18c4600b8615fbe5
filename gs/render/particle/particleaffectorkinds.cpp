#include "gs/render/particle/particleaffector_coloroscillator.h"
#include "gs/render/particle/particleaffector_drag.h"
#include "gs/render/particle/particleaffector_fade.h"
#include "gs/render/particle/particleaffector_jitter.h"
#include "gs/render/particle/particleaffector_killparticlesnearpoint.h"
#include "gs/render/particle/particleaffector_linearboundedinflate.h"
#include "gs/render/particle/particleaffector_linearforceindirection.h"
#include "gs/render/particle/particleaffector_linearforcetopoint.h"
#include "gs/render/particle/particleaffector_linearinflate.h"
#include "gs/render/particle/particleaffector_rotateaboutaxis.h"
#include "gs/render/particle/particleaffector_sizeoscillator.h"
#include "gs/render/particle/particlekinds.h"

namespace Vorn {

namespace {

template <class Class>
constexpr auto kMake = MakePart<ParticleAffector, Class>;

constexpr ParticleKind<ParticleAffector> kKinds[] = {
    {u"ColorOscillator", kMake<ParticleAffector_ColorOscillator>},
    {u"Drag", kMake<ParticleAffector_Drag>},
    {u"Fade", kMake<ParticleAffector_Fade>},
    {u"Jitter", kMake<ParticleAffector_Jitter>},
    {u"KillParticlesNearPoint", kMake<ParticleAffector_KillParticlesNearPoint>},
    {u"LinearBoundedInflate", kMake<ParticleAffector_LinearBoundedInflate>},
    {u"LinearForceInDirection", kMake<ParticleAffector_LinearForceInDirection>},
    {u"LinearForceToPoint", kMake<ParticleAffector_LinearForceToPoint>},
    {u"LinearInflate", kMake<ParticleAffector_LinearInflate>},
    {u"RotateAboutAxis", kMake<ParticleAffector_RotateAboutAxis>},
    {u"SizeOscillator", kMake<ParticleAffector_SizeOscillator>},
    {u"Exposed_By_Controller", nullptr},
};

constexpr auto kTexts = TextsOf(kKinds);

} // namespace

const EnumTable ParticleAffector::kTypes = MakeTable("ParticleAffector::Type", kTexts);

std::unique_ptr<ParticleAffector> ParticleAffector::Make(ParticleSimulationDefinition& definition, Type type) {
    return MakeOfKind(kKinds, definition, type);
}

} // namespace Vorn
