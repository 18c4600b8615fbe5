#include "engine/render/mesh/cachedvertexindices.h"
#include "tests/support/enginetest.h"

#include <bit>
#include <cmath>
#include <limits>

namespace Vorn {

namespace {

enum Direction { Up, Down, Left, Right, Front, Back };

constexpr Vector3 kUp = {0.0f, 1.0f, 0.0f};
constexpr Vector3 kFront = {0.0f, 0.0f, 1.0f};
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

using Indices = std::vector<std::int32_t>;

class CachedVertexIndicesTest : public EngineTest {
protected:
    // A mesh of vertices with the same normal.
    void Fill(const std::vector<Vector3>& positions, const Vector3& normal) {
        Fill(static_cast<int>(positions.size()));
        for (int i = 0; i < data.vertices.Size(); ++i) {
            data.vertices[i].position = positions[static_cast<std::size_t>(i)];
            data.vertices[i].normal = normal;
        }
    }
    void Fill(int count) { data.vertices.Resize(count); }

    Indices List(Direction direction) {
        data.ComputeCachedVertexIndices();
        const auto& list = data.cachedVertexIndices[direction];
        return {list.begin(), list.end()};
    }

    // The lists of a single vertex with this normal.
    std::string Facing(const Vector3& normal) {
        Fill({{}}, normal);
        std::string names;
        for (int i = 0; i < Mesh::Data::kDirectionCount; ++i) {
            if (!List(static_cast<Direction>(i)).empty()) {
                names += Utf8(kDirections[i].name) + " ";
            }
        }
        return names;
    }

    Mesh::Data data;
};

} // namespace

TEST_F(CachedVertexIndicesTest, NormalsFaceTheirAxesAndNeighbours) {
    EXPECT_EQ(Facing({0.0f, 1.0f, 0.0f}), "UP ");
    EXPECT_EQ(Facing({0.0f, -1.0f, 0.0f}), "DOWN ");
    EXPECT_EQ(Facing({-1.0f, 0.0f, 0.0f}), "LEFT ");
    EXPECT_EQ(Facing({1.0f, 0.0f, 0.0f}), "RIGHT ");
    EXPECT_EQ(Facing({0.0f, 0.0f, 1.0f}), "FRONT ");
    EXPECT_EQ(Facing({0.0f, 0.0f, -1.0f}), "BACK ");
    EXPECT_EQ(Facing({0.5f, 0.5f, std::sqrt(0.5f)}), "UP RIGHT FRONT ");
    EXPECT_EQ(Facing({}), "");
}

TEST_F(CachedVertexIndicesTest, TheAngleIsAtMostThreeEighthsOfPi) {
    const float least = std::bit_cast<float>(0x3EC3EF14U);
    EXPECT_EQ(Facing({0.0f, least, 0.0f}), "UP ");
    EXPECT_EQ(Facing({0.0f, std::nextafter(least, 0.0f), 0.0f}), "");
}

TEST_F(CachedVertexIndicesTest, NotANumberFacesNothing) {
    EXPECT_EQ(Facing({kNan, 1.0f, 0.0f}), "");
    EXPECT_EQ(Facing({kInfinity, 1.0f, 0.0f}), "RIGHT ");
    EXPECT_EQ(Facing({-kInfinity, kInfinity, 0.0f}), "");
}

TEST_F(CachedVertexIndicesTest, SortsByDistanceFromTheRadiusOnOneAxis) {
    data.BoundingRadius = 10.0f;
    // Keys on z: 10, 1, 4, 1; on x: 0, 9, 2, 5.
    Fill({{10, 0, 0}, {1, 50, 9}, {12, 0, 14}, {15, -50, 11}}, kUp);
    EXPECT_EQ(List(Up), (Indices{1, 3, 2, 0}));
    Fill({{10, 0, 0}, {1, 50, 9}, {12, 0, 14}, {15, -50, 11}}, kFront);
    EXPECT_EQ(List(Front), (Indices{0, 2, 3, 1}));
}

TEST_F(CachedVertexIndicesTest, EqualKeysKeepTheOrderOfVerticesInListsOfAllSizes) {
    for (const int count : {33, 5000, 300000}) {
        Fill(count);
        Indices expected;
        for (int remainder = 0; remainder < 3; ++remainder) {
            for (int i = remainder; i < count; i += 3) {
                data.vertices[i].position = {static_cast<float>(i), 0.0f, static_cast<float>(remainder)};
                data.vertices[i].normal = kUp;
                expected.push_back(i);
            }
        }
        EXPECT_EQ(List(Up), expected) << count;
    }
}

TEST_F(CachedVertexIndicesTest, KeysThatAreNotNumbersComeLast) {
    data.BoundingRadius = -1.0f;
    // The square of the second difference overflows, that of the last vanishes.
    Fill({{0, 0, kNan}, {0, 0, 1e30f}, {0, 0, -kNan}, {0, 0, kInfinity}, {0, 0, 3}, {0, 0, -1}}, kUp);
    EXPECT_EQ(List(Up), (Indices{5, 4, 1, 3, 0, 2}));
}

TEST_F(CachedVertexIndicesTest, LeavesOutWhatIsTooCloseToTheLastOne) {
    data.BoundingRadius = 100.0f;
    // From z = 99 downward: 2 is far from 0, 3 is close to 2, 4 is close only to 3, 1 is close to 4, and 0 is far from
    // all.
    Fill({{0, 0, 0}, {0, 0, 96.9f}, {0, 0, 99}, {0, 0, 98.25f}, {0, 0, 97.75f}}, kUp);
    EXPECT_EQ(List(Up), (Indices{2, 4, 0}));
}

TEST_F(CachedVertexIndicesTest, TheWalkBeginsAtVertexZeroListedOrNot) {
    data.BoundingRadius = 100.0f;
    Fill({{0, 0, 50}, {0, 0, 50.5f}, {0, 0, 49.5f}, {0, 0, 40}}, kUp);
    EXPECT_EQ(List(Up), (Indices{0, 3}));
    data.vertices[0].normal = kFront;
    EXPECT_EQ(List(Up), (Indices{3}));
    // After another vertex, vertex 0 must keep its distance like any other.
    Fill({{0, 0, 50}, {0, 5, 51}, {0, 5, 50.5f}, {0, 0.5f, 50}}, kUp);
    EXPECT_EQ(List(Up), (Indices{1, 0}));
    Fill({{0, 0, 49.5f}, {0, 5, 51}, {0, 0.5f, 50}}, kUp);
    EXPECT_EQ(List(Up), (Indices{1, 2}));
}

TEST_F(CachedVertexIndicesTest, ARadiusOfZeroOrLessThinsNothing) {
    for (const float radius : {0.0f, -1.0f, kNan}) {
        data.BoundingRadius = radius;
        Fill({{0, 0, 2}, {0, 0, 2}, {0, 0, 2}}, kUp);
        EXPECT_EQ(List(Up), (Indices{0, 1, 2}));
    }
}

TEST_F(CachedVertexIndicesTest, ReplacesWhatTheListsHeld) {
    Fill({{}}, kUp);
    for (int i = 0; i < 8; ++i) {
        data.cachedVertexIndices[Up].Append(i);
        data.cachedVertexIndices[Back].Append(i);
    }
    EXPECT_EQ(List(Up), (Indices{0}));
    EXPECT_EQ(List(Back), (Indices{}));
}

} // namespace Vorn
