#include "gs/entity/interfaces/iautorotatedef.h"

namespace Vorn {

void IAutoRotateDef::Fields(FieldIo& io) {
    io.Degrees(u"angularSpeed", angularSpeed);
    io.String(u"rotateSoundName", rotateSoundName, NameKind::Sound);
    io.Enum(u"rotateFacingType", rotateFacingType);
    io.Bool(u"rotateConstantly", rotateConstantly);
}

} // namespace Vorn
