#include "engine/archive/enumtable.h"
#include "tests/support/enginetest.h"

namespace Vorn {

namespace {

enum class Stance : std::int32_t { Invalid = -1, Hold, Chase, Flee };
constexpr EnumRow<Stance> kStanceRows[] = {{Stance::Hold, u"Hold"}, {Stance::Chase, u"Chase"}, {Stance::Flee, u"Flee"}};
constexpr auto kStanceTexts = TextsInOrder<Stance::Flee>(kStanceRows);

} // namespace

template <>
inline constexpr EnumTable kEnumTable<Stance> = MakeTable("Stance", kStanceTexts);

namespace {

class EnumTableTest : public EngineTest {};

TEST_F(EnumTableTest, TextsAndNumbers) {
    constexpr const EnumTable& kTable = kEnumTable<Stance>;
    EXPECT_EQ(EnumToText(Stance::Chase), u"Chase");
    EXPECT_EQ(EnumToText(Stance::Invalid), u"Invalid");
    EXPECT_EQ(EnumFromText(u"Flee", kTable), 2);
    EXPECT_EQ(EnumFromText(u"Invalid", kTable), -1);
    EXPECT_EQ(TakeReports(), Reports());
    EXPECT_EQ(EnumFromText(u"flee", kTable), -1);
    EXPECT_EQ(EnumFromText(u"", kTable), -1);
    EXPECT_EQ(EnumToText(3, kTable).data(), nullptr);
    EXPECT_EQ(EnumToText(-2, kTable).data(), nullptr);
    EXPECT_EQ(TakeReports(),
              Reports({"Failed to convert 'flee' to a Stance::enum value.\n",
                       "Failed to convert '' to a Stance::enum value.\n", Check("false"), Check("false")}));
}

} // namespace

} // namespace Vorn
