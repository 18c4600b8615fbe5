#include "engine/render/mesh/mesh.h"

namespace Vorn {

Mesh::~Mesh() {
    CheckAssert(m_RefCount == 0, "m_RefCount == 0");
    CheckAssert(m_DiffuseTexturePtrs.Size() == 0, "m_DiffuseTexturePtrs.Size() == 0");
    CheckAssert(m_SelfIlluminationTexturePtrs.Size() == 0, "m_SelfIlluminationTexturePtrs.Size() == 0");
    CheckAssert(m_NormalTexturePtrs.Size() == 0, "m_NormalTexturePtrs.Size() == 0");
    CheckAssert(m_DisplacementTexturePtrs.Size() == 0, "m_DisplacementTexturePtrs.Size() == 0");
    CheckAssert(m_TeamColorTexturePtrs.Size() == 0, "m_TeamColorTexturePtrs.Size() == 0");
    CheckAssert(m_pD3DXMesh == nullptr, "m_pD3DXMesh == NULL");
    CheckAssert(m_pSHPRTBuffer == nullptr, "m_pSHPRTBuffer == NULL");
    CheckAssert(m_pAttributeTable == nullptr, "m_pAttributeTable == NULL");
    CheckAssert(m_AttributeTableSize == 0, "m_AttributeTableSize == 0UL");
}

} // namespace Vorn
