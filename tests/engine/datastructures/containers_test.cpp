#include "engine/datastructures/dynamicarray.h"
#include "engine/datastructures/fixedvector.h"
#include "engine/datastructures/list.h"
#include "engine/datastructures/pool.h"
#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

// Counts its objects, so that a container that loses or doubles one is detected.
struct Element {
    Element() { ++living; }
    Element(int _value) : value(_value) { ++living; }
    Element(const Element& other) : value(other.value) { ++living; }
    Element& operator=(const Element&) = default;
    ~Element() { --living; }

    friend bool operator==(const Element& left, const Element& right) { return left.value == right.value; }

    int value = 0;
    static inline int living = 0;
};

template <class Container>
std::vector<int> ValuesOf(Container& container) {
    std::vector<int> values;
    for (const Element& element : container) {
        values.push_back(element.value);
    }
    return values;
}

using Values = std::vector<int>;

class ContainerTest : public EngineTest {};

TEST_F(ContainerTest, AccessOutsideIsReportedAndHarmless) {
    FixedArray<Element, 2> fixed;
    fixed[-1].value = 5;
    EXPECT_EQ(fixed[2].value, 0) << "what was written outside is lost";
    EXPECT_EQ(TakeReports(), Reports({Check("i >= 0"), Check("i < MAX_SIZE")}));
    FixedVector<Element, 2> vector;
    DynamicVector<Element> dynamic;
    vector[0].value = 5;
    dynamic[-1].value = 5;
    EXPECT_EQ(TakeReports(), Reports({Check("i < m_CurrentSize"), Check("i >= 0")}));
    DynamicArray<Element> array;
    array.Resize(3);
    array[3].value = 5;
    EXPECT_EQ(TakeReports(), Reports({Check("IsIndexValid(i)")}));
    EXPECT_EQ(ValuesOf(array), Values(3));
    Matrix33 matrix;
    matrix(3, -1) = 5.0f;
    matrix.Row(3);
    Matrix44()(0, 4) = 5.0f;
    EXPECT_EQ(TakeReports(), Reports({Check("(0 <= row) && (row < 3)"), Check("(0 <= column) && (column < 3)"),
                                      Check("(row >= 0) && (row < 3)"), Check("(0 <= column) && (column < 4)")}));
}

TEST_F(ContainerTest, FixedVectorKeepsItsBound) {
    FixedVector<Element, 3> vector;
    for (int i = 1; i <= 4; ++i) {
        vector.Append(i);
    }
    EXPECT_EQ(TakeReports(), Reports({Check("m_CurrentSize < MAX_SIZE")}));
    vector.RemoveAt(0);
    FixedVector<Element, 3> copy(vector);
    EXPECT_EQ(ValuesOf(copy), Values({2, 3}));
    copy.RemoveLast();
    copy.RemoveLast();
    copy.RemoveLast();
    copy.RemoveAt(0);
    EXPECT_EQ(copy.Size(), 0);
    EXPECT_EQ(TakeReports(), Reports({Check("m_CurrentSize > 0"), Check("i < m_CurrentSize")}));
}

TEST_F(ContainerTest, DynamicVectorGrowsToTwiceAndOne) {
    const int before = Element::living;
    {
        DynamicVector<Element> vector;
        Values capacities;
        for (int i = 0; i < 8; ++i) {
            vector.Append(i);
            capacities.push_back(vector.Capacity());
        }
        EXPECT_EQ(capacities, Values({1, 3, 3, 7, 7, 7, 7, 15}));
        vector.RemoveAt(2);
        DynamicVector<Element> copy;
        copy = vector;
        EXPECT_EQ(ValuesOf(copy), Values({0, 1, 3, 4, 5, 6, 7}));
        vector.Reserve(3);
        vector.Reserve(-1);
        EXPECT_EQ(TakeReports(), Reports({Check("newMaxSize >= m_MaxSize"), Check("newMaxSize >= 0"),
                                          Check("newMaxSize >= m_MaxSize")}));
        vector.Clear();
        EXPECT_EQ(vector.Capacity(), 15);
        EXPECT_EQ(Element::living, before + 7);
    }
    EXPECT_EQ(Element::living, before);
}

TEST_F(ContainerTest, ListLinksAndChecksItsNodes) {
    List<Element> list;
    List<Element> other;
    list.Append(1);
    list.Append(3);
    other.Append(9);
    list.Insert(++list.begin(), 2);
    list.Insert(other.begin(), 7);
    list.Insert(list.end(), 7);
    EXPECT_EQ(TakeReports(), Reports(2, Check("where.GetInternalNodePtr()->m_pOwnerList == this")));
    EXPECT_EQ(ValuesOf(list), Values({1, 2, 3}));
    list.Remove(++list.begin());
    EXPECT_EQ(ValuesOf(list), Values({1, 3}));
    auto end = list.end();
    ++end;
    --end;
    (*end).value = 5;
    EXPECT_EQ(TakeReports(), Reports(3, Check("m_pNode != NULL")));
    EXPECT_EQ(list.Size(), 2);
    list.Clear();
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(ValuesOf(list), Values());
}

TEST_F(ContainerTest, UsedUpPoolsTakeFromTheHeap) {
    const int before = Element::living;
    Pool<Element, 2> pool;
    Element* first = pool.Make(1);
    Element* second = pool.Make(2);
    EXPECT_EQ(TakeReports(), Reports());
    Element* third = pool.Make(3);
    EXPECT_EQ(TakeReports().size(), 1u);
    EXPECT_EQ(Element::living, before + 3);
    pool.Destroy(first);
    EXPECT_EQ(pool.Make(4), first) << "room that came free is used again";
    for (Element* element : {first, second, third}) {
        pool.Destroy(element);
    }
    EXPECT_EQ(Element::living, before);
}

TEST_F(ContainerTest, ImpossibleSizesEndTheProcess) {
    EXPECT_EXIT(DynamicArray<Element>().Resize(-1), testing::KilledBySignal(SIGABRT), "");
    EXPECT_EXIT(DynamicVector<std::uint64_t>().Reserve(0x10000000), testing::KilledBySignal(SIGABRT), "");
    EXPECT_EXIT(FileSystem().Close(nullptr), testing::KilledBySignal(SIGABRT), "");
}

TEST(Color, PacksEightBitsAChannel) {
    const auto channel = [](float value) { return Color{0.0f, 0.0f, value, 0.0f}.ToUInt(); };
    EXPECT_EQ(channel(0.5f), 128u);
    EXPECT_EQ(channel(1.5f), 255u);
    EXPECT_EQ(channel(-0.5f), 0u);
    EXPECT_EQ(channel(std::numeric_limits<float>::quiet_NaN()), 0u);
    EXPECT_EQ(channel(0.99999997f), 255u);
    EXPECT_EQ((Color{1.0f, 0.0f, 0.0f, 1.0f}.ToUInt()), 0xFFFF0000);
    EXPECT_EQ(Color::FromUInt(0x00008000).green, 0.501960814f);
    for (std::uint32_t packed = 0; packed < 256; ++packed) {
        EXPECT_EQ(Color::FromUInt(packed * 0x01010101).ToUInt(), packed * 0x01010101);
    }
}

} // namespace

} // namespace Vorn
