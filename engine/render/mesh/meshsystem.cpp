#include "engine/render/mesh/meshsystem.h"

#include "engine/core/reporting.h"
#include "engine/file/filesystem.h"
#include "engine/file/path.h"

namespace Vorn {

bool MeshSystem::FindMeshFile(FixedString<260>& result, std::u16string_view name) {
    result.Assign(name);
    if (FileSystem::Exists(result.View())) {
        return true;
    }
    FixedString<260> fileName;
    Format(fileName.Buffer(), u"%s.mesh", SplitPath(name).stem);
    ReportError(u"Failed to find data file '%s'. (SubPath = %s)\n", fileName, u"");
    return false;
}

} // namespace Vorn
