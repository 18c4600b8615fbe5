#include "engine/render/mesh/mesh.h"

#include <algorithm>
#include <cmath>

namespace Vorn {

namespace {

float SquaredLength(const Vector3& v) {
    return v.x * v.x + v.y * v.y + v.z * v.z;
}

// NaN is outside.
bool IsWithin(float value, float tolerance) {
    return std::fabs(value - 1.0f) <= tolerance;
}

bool IsUnitDeterminant(float determinant) {
    return IsWithin(std::clamp(determinant, -1.0f, 1.0f), 0.01f);
}

bool IsLeftHandAndNormalized(const Matrix33& m) {
    const Vector3 a = m.Row(0);
    const Vector3 b = m.Row(1);
    const Vector3 c = m.Row(2);
    for (const Vector3& row : {a, b, c}) {
        if (!IsWithin(SquaredLength(row), 0.2f)) {
            return false;
        }
    }
    const float byRow = a.x * (b.y * c.z - b.z * c.y) - a.y * (b.x * c.z - b.z * c.x) + a.z * (b.x * c.y - b.y * c.x);
    const float byColumn =
        a.x * (b.y * c.z - b.z * c.y) - b.x * (a.y * c.z - a.z * c.y) + c.x * (a.y * b.z - a.z * b.y);
    return IsUnitDeterminant(byRow) && IsUnitDeterminant(byColumn);
}

} // namespace

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

Mesh::Point Mesh::Point::Default() {
    Point point;
    for (int i = 0; i < 3; ++i) {
        point.orientation(i, i) = 1.0f;
    }
    return point;
}

void Mesh::ArchivablePoint::Fields(FieldIo& io) {
    io.String(u"DataString", name);
    io.Vector3(u"Position", position);
    io.Matrix33(u"Orientation", orientation);
    if (io.Reading()) {
        CheckAssert(IsLeftHandAndNormalized(orientation), "m_Orientation.IsLeftHandAndNormalized()");
    }
}

} // namespace Vorn
