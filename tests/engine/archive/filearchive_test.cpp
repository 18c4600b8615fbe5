#include "engine/archive/checksum.h"
#include "tests/support/allkinds.h"
#include "tests/support/archivetest.h"

#include <array>
#include <bit>
#include <charconv>
#include <random>
#include <string>
#include <vector>

namespace Vorn {

namespace {

class FileArchiveTest : public ArchiveTest {
protected:
    // The fields of a record, at the top level of the file.
    static Fields FieldsOf(Record& record) {
        return [&record](FieldIo& io) { record.Fields(io); };
    }

    AllKinds all = AllKinds::Filled();
};

constexpr std::string_view kPlainText = "color 40ff8000\r\n"
                                        "rectangle [ 10 , 20 , 30 , 40 ]\r\n"
                                        "size [ -1 , 2 ]\r\n"
                                        "point [ 3 , -2147483648 ]\r\n"
                                        "quad [ 0.500000 1.500000 -2.500000 1000000000.000000 ]\r\n"
                                        "matrix44\r\n"
                                        "\t [ 0.000000 0.000000 0.000000 0.000000 ]\r\n"
                                        "\t [ 0.000000 0.000000 0.000000 0.000000 ]\r\n"
                                        "\t [ 0.000000 0.000000 0.000000 0.000000 ]\r\n"
                                        "\t [ -6.250000 0.000000 0.000000 0.000000 ]\r\n"
                                        "matrix33\r\n"
                                        "\t [ 0.000000 0.000000 0.000000 ]\r\n"
                                        "\t [ 0.000000 0.000000 6.250000 ]\r\n"
                                        "\t [ 0.000000 0.000000 0.000000 ]\r\n"
                                        "vector3 [ 1.000000 -2.000000 0.000000 ]\r\n"
                                        "string \"a \"b\" %s \xC3\xB6\"\r\n"
                                        "int64 -9223372036854775808\r\n"
                                        "bool TRUE\r\n"
                                        "double 0.333333\r\n"
                                        "float 0.100000\r\n"
                                        "int -7\r\n"
                                        "value \"by name\"\r\n"
                                        "record\r\n"
                                        "\tcount -1294967296\r\n";

TEST_F(FileArchiveTest, TextFormOfEveryKind) {
    const std::string written = Written(FileArchiveType::Text, FieldsOf(all));
    EXPECT_EQ(written, kPlainText);
    AllKinds read;
    Read(std::string(kTextHeader) + written, FieldsOf(read));
    // The string is cut at its first quote; all other fields are read back unchanged.
    EXPECT_EQ(read.string.View(), u"a ");
    read.string = all.string;
    EXPECT_EQ(Written(FileArchiveType::Text, FieldsOf(read)), kPlainText);
}

TEST_F(FileArchiveTest, FloatBitsKeepFloatsExact) {
    const std::string written = Written(FileArchiveType::Text, FieldsOf(all), true);
    for (const char* line :
         {"\r\nfloat 0.10 Bits=1036831949\r\n", "\r\ndouble 0.33 Bits=4599676419421066581\r\n",
          "\r\nvector3 [ 1.00 -2.00 0.00 ] Bits=[ 1065353216 , -1073741824 , 889599933 ]\r\n",
          "\r\nquad [ 0.50 1.50 -2.50 1000000000.00 ] Bits=[ 1056964608 , 1069547520 , -1071644672 , "
          "1315859240 ]\r\n",
          "\r\n\t [ 0.00 0.00 6.25 ] Bits=[ 0 , 0 , 1086849024 ]\r\n"}) {
        EXPECT_NE(written.find(line), std::string::npos) << line << written;
    }
    AllKinds read;
    Read(std::string(kTextHeader) + written, FieldsOf(read), true);
    EXPECT_EQ(read.real, all.real);
    EXPECT_EQ(read.vector3.z, all.vector3.z);
    // Without the flag only the decimals are looked at, and a plain file misses the bits.
    Read(std::string(kTextHeader) + written, FieldsOf(read));
    EXPECT_EQ(read.real, 0.33);
    EXPECT_EQ(TakeReports(), Reports());
    Read(
        std::string(kTextHeader) + "float 0.25\nvector3 [ 1 2 3 ]\n",
        [&](FieldIo& io) {
            io.Float(u"float", read.single);
            io.Vector3(u"vector3", read.vector3);
        },
        true);
    EXPECT_EQ(TakeReports(), Reports({Check("result == 2"), Check("result == 6")}));
}

TEST_F(FileArchiveTest, BinaryFormOfEveryKind) {
    all.boolean = Bool::FromByte(7);
    all.single = std::bit_cast<float>(0x7F800001);
    const std::string written = Written(FileArchiveType::Binary, FieldsOf(all));
    EXPECT_EQ(written.size(),
              16u + 16 + 8 + 8 + 16 + 64 + 36 + 12 + (4 + 2 * 10) + 8 + 1 + 8 + 4 + 4 + (4 + 2 * 7) + 4);
    EXPECT_EQ(written.substr(16, 16), std::string("\x0A\0\0\0\x14\0\0\0\x28\0\0\0\x3C\0\0\0", 16));
    EXPECT_EQ(written.substr(176, 8), std::string("\x0A\0\0\0a\0 \0", 8));
    AllKinds read;
    Read(std::string(kBinaryHeader) + written, FieldsOf(read));
    EXPECT_EQ(read.string.View(), all.string.View());
    EXPECT_EQ(Written(FileArchiveType::Binary, FieldsOf(read)), written);
    // Wherever the file is cut, all fields are read, and the end is reported.
    for (std::size_t length = 0; length < written.size(); ++length) {
        AllKinds cut;
        Read(std::string(kBinaryHeader) + written.substr(0, length), FieldsOf(cut));
        EXPECT_FALSE(TakeReports().empty()) << length;
    }
}

TEST_F(FileArchiveTest, MissingLabelsLeaveDefaults) {
    const std::uint32_t checkSum = Read("TXT\nnothing 1\n", FieldsOf(all));
    EXPECT_EQ(checkSum, 0u);
    EXPECT_EQ(TakeReports().size(), 16u);
    EXPECT_EQ(Written(FileArchiveType::Text, FieldsOf(all)), kPlainText);
}

// What a line of text makes of a field, by the name of its kind.
TEST_F(FileArchiveTest, ValuesInText) {
    struct Row {
        const char* kind;
        const char* value;
        const char* result;
        Reports reports = {};
    };
    const auto unquoted = [&](const char* value) {
        return "\" not found wrapping data string: string\nFileName: " + Utf8(NameIn("source")) +
               "\nLine #: 16\nLine Content: string " + value + "\n";
    };
    const Row rows[] = {
        {"int", "12abc", "12"},
        {"int", "abc", "-7", {Check("result == 1")}},
        {"int", "", "-7", {Check("result == 1")}},
        {"int64", "x", "-9223372036854775808", {Check("result == 1")}},
        {"float", "-", "0.100000", {Check("result == 1")}},
        {"float", "1e50", "inf"},
        {"double", "1e39", "999999999999999939709166371603178586112.000000"},
        {"double", "?", "0.333333", {Check("result == 1")}},
        {"bool", "notTRUEorFALSE", "TRUE"},
        {"bool", "FALSEhood", "FALSE"},
        {"bool", "true", "TRUE", {Check("false")}},
        {"color", "0xFF", "ff"},
        {"color", "red", "40ff8000"},
        {"color", "0", "0"},
        {"point", "[1,2", "[ 1 , 2 ]"},
        {"point", "[ 1 2 ]", "[ 1 , -2147483648 ]", {Check("result == 2")}},
        {"size", "1 , 2", "[ -1 , 2 ]", {Check("result == 2")}},
        {"rectangle", "[ 10 , 20 , 30 ]", "[ 10 , 20 , 30 , -1 ]", {Check("result == 4")}},
        {"rectangle", "", "[ -1 , -1 , -1 , -1 ]", {Check("result == 4")}},
        {"rectangle", "[ 2147483647 , 0 , 1 , 0 ]", "[ 2147483647 , 0 , 1 , 0 ]"},
        {"vector3", "[4 5.5 6]", "[ 4.000000 5.500000 6.000000 ]"},
        {"vector3", "[ 4 ]", "[ 4.000000 -2.000000 0.000000 ]", {Check("result == 3")}},
        {"quad", "[ 1 2 3, 4 ]", "[ 1.000000 2.000000 3.000000 1000000000.000000 ]", {Check("result == 4")}},
        {"string", "\"\"", "\"\""},
        {"string", "none", "\"\"", {unquoted("none")}},
        {"string", "\"open", "\"open\r\n\"", {unquoted("\"open")}},
        {"string", "see \"this\" \"that\"", "\"this\""},
        {"string", "\"1234567890123456789\"", "\"1234567890123456789\""},
        {"string", "\"123456789012345678901\"", "\"1234567890123456789\"",
         Reports(2, Check("numCharsCopied < bufferSize"))},
    };
    const std::string plain = "\r\n" + std::string(kPlainText);
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.kind) + " " + row.value);
        AllKinds read = all;
        // All lines are as written except that of the kind.
        const auto replaced = [&](const std::string& value) {
            const std::size_t start = plain.find("\r\n" + std::string(row.kind) + " ") + 3 + std::strlen(row.kind);
            return std::string(plain).replace(start, plain.find("\r\n", start) - start, value).substr(2);
        };
        std::string source = replaced(row.value);
        Read(std::string(kTextHeader) + source, FieldsOf(read));
        EXPECT_EQ(TakeReports(), row.reports);
        if (row.kind != std::string("string")) {
            read.string = all.string;
        }
        EXPECT_EQ(Written(FileArchiveType::Text, FieldsOf(read)), replaced(row.result));
    }
}

// Plain bytes are read by the fast path and other encodings by the slow one; the results must be the same.
TEST_F(FileArchiveTest, PlainLinesReadLikeDecodedOnes) {
    const auto seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    constexpr std::string_view kParts = "0123456789.-+eExfTAL[],\" \t\r\n";
    for (int i = 0; i < 3000 && !HasFailure(); ++i) {
        std::string text = std::string(kTextHeader) + std::string(kPlainText);
        text.replace(text.find("\xC3\xB6"), 2, 1, 'o');
        for (auto faults = random() % 4; faults > 0; --faults) {
            const std::size_t at = 4 + random() % (text.size() - 4);
            text.replace(at, random() % 2, random() % 3, kParts[random() % kParts.size()]);
        }
        std::string wide = "\xFF\xFE";
        for (const char byte : text) {
            wide += {byte, '\0'};
        }
        AllKinds fromPlain = all;
        AllKinds fromWide = all;
        const std::uint32_t plainSum = Read(text, FieldsOf(fromPlain));
        const Reports plainReports = TakeReports();
        EXPECT_EQ(plainSum, Read(wide, FieldsOf(fromWide))) << text;
        EXPECT_EQ(plainReports, TakeReports()) << text;
        EXPECT_TRUE(Written(FileArchiveType::Binary, FieldsOf(fromPlain)) ==
                    Written(FileArchiveType::Binary, FieldsOf(fromWide)))
            << text;
    }
}

// The fast path computes numbers by itself; the standard library gives the expected values.
TEST_F(FileArchiveTest, NumbersOfAllLengths) {
    const auto seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const auto digits = [&](std::size_t count) {
        std::string text;
        while (text.size() < count) {
            text += static_cast<char>('0' + random() % 10);
        }
        return text;
    };
    const auto sign = [&] { return std::string(random() % 2, '-'); };
    // The first ones are exactly in the middle between two floats.
    std::vector<std::string> floats = {"16777217.000000", "-16777219.000000", "8388608.500000", "268435472.000000",
                                       "0.000000",        "-0.000000",        "9.999999",       "10.000000"};
    std::vector<std::string> ints = {"2147483647", "-2147483648", "0000000", "-0"};
    constexpr std::size_t kCount = 4000;
    while (floats.size() < kCount) {
        floats.push_back(sign() + digits(1 + random() % 11) + "." + digits(6));
    }
    while (ints.size() < kCount) {
        ints.push_back(sign() + digits(1 + random() % 9));
    }
    std::string text(kTextHeader);
    for (std::size_t i = 0; i < kCount; ++i) {
        text += std::string(random() % 10, '\t') + "float " + floats[i] + "\r\n";
        text += std::string(random() % 10, '\t') + "int " + ints[i] + "\n";
    }
    Read(text, [&](FieldIo& io) {
        for (std::size_t i = 0; i < kCount; ++i) {
            float single = 0.0f;
            std::int32_t integer = 0;
            std::from_chars(floats[i].data(), floats[i].data() + floats[i].size(), single);
            std::from_chars(ints[i].data(), ints[i].data() + ints[i].size(), integer);
            float readSingle = -1.0f;
            std::int32_t readInteger = -1;
            io.Float(u"float", readSingle);
            io.Int(u"int", readInteger);
            EXPECT_EQ(std::bit_cast<std::uint32_t>(readSingle), std::bit_cast<std::uint32_t>(single)) << floats[i];
            EXPECT_EQ(readInteger, integer) << ints[i];
        }
    });
    EXPECT_EQ(TakeReports(), Reports());
}

TEST_F(FileArchiveTest, LabelsAndLines) {
    struct Row {
        const char* text;
        Reports labelsMissing;
    };
    const auto missing = [&](const char* label, int line, const char* content) {
        return "Text FileArchive missing Label.\n\nFile: " + Utf8(NameIn("source")) + "\nLabel: " + label +
               "\nLine Number:" + std::to_string(line) + "\nLine Contents:" + content + "\n";
    };
    const std::string noEnd =
        "Missing \n in " + Utf8(NameIn("source")) +
        "\n\nThis is a mostly harmless error message usually caused by forgetting to hit enter at "
        "the end of the last line of the file";
    const Row rows[] = {
        {" \t a \t1\nb\v2\nc\t\n", {Check("result == 1")}},
        {"a 1\nc 3\n", {missing("b", 2, "c 3\n")}},
        {"a 1\n\nb 2\nc 3\n", {missing("b", 2, "\n"), missing("c", 3, "\n")}},
        {"a 1\nbb 2\nc 3\n", {missing("b", 2, "bb 2\n"), missing("c", 3, "bb 2\n")}},
        {"A 1\n", {missing("a", 1, "A 1\n"), missing("b", 2, "A 1\n"), missing("c", 3, "A 1\n")}},
        {"a\xC2\xA0"
         "1\nb 2\nc 3\n",
         {missing("a", 1,
                  "a\xC2\xA0"
                  "1\n"),
          missing("b", 2,
                  "a\xC2\xA0"
                  "1\n"),
          missing("c", 3,
                  "a\xC2\xA0"
                  "1\n")}},
        {"a 1\nb 2\nc", {noEnd, missing("c", 3, "c")}},
        {"a 1\nb 2\nc 3", {noEnd}},
        {"a 1\nb 2\nc 3\nmore\n", {}},
    };
    for (const Row& row : rows) {
        std::int32_t values[3] = {};
        Read(std::string(kTextHeader) + row.text, [&](FieldIo& io) {
            io.Int(u"a", values[0]);
            io.Int(u"b", values[1]);
            io.Int(u"c", values[2]);
        });
        EXPECT_EQ(TakeReports(), row.labelsMissing) << row.text;
    }
}

// The last line stays the current one and can be read any number of times, even after other labels did not match it.
TEST_F(FileArchiveTest, LastLineServesItsLabelForEver) {
    DynamicVector<FixedString<20>> sounds;
    std::int32_t other = 5;
    Read("TXT\nsoundCount 3\nsound \"a\"\n", [&](FieldIo& io) {
        io.GrowingList(u"soundCount", sounds, [&](auto& sound) { io.String(u"sound", sound); });
        EXPECT_EQ(TakeReports(), Reports());
        io.Int(u"other", other);
        EXPECT_NE(TakeReports().at(0).find("Line Number:5\nLine Contents:sound \"a\"\n"), std::string::npos);
        io.String(u"sound", sounds.Append());
    });
    ASSERT_EQ(sounds.Size(), 4);
    EXPECT_EQ(std::count(sounds.begin(), sounds.end(), FixedString<20>(u"a")), 4);
}

// Each row is read from the next line, whatever its content, and at the end of the file from the last line again.
TEST_F(FileArchiveTest, MatrixRowsHaveNoLabel) {
    Matrix33 matrix;
    std::int32_t behind = 0;
    Read("TXT\nm \n[ 1 2 3 ]\nx\n [4 5 6\nbehind 8\n", [&](FieldIo& io) {
        io.Matrix33(u"m", matrix);
        io.Int(u"behind", behind);
    });
    EXPECT_EQ(TakeReports(), Reports({Check("result == 3")}));
    EXPECT_EQ(behind, 8);
    EXPECT_EQ(matrix.rows[2][2], 6.0f);
    Matrix44 cut;
    Read("TXT\nm \n [ 1 2 3 4 ]\n", [&](FieldIo& io) { io.Matrix44(u"m", cut); });
    EXPECT_EQ(cut.rows[3][3], 4.0f);
}

TEST_F(FileArchiveTest, CutsLongLinesWhenWriting) {
    for (const std::size_t length : {1017u, 1018u, 1500u}) {
        const std::u16string text(length, u'x');
        FileArchive* archive = core->fileArchiveSystem.OpenForWrite(NameIn("long"), false, FileArchiveType::Text);
        archive->Write(u"key", text.c_str(), 2000);
        core->fileArchiveSystem.Close(archive);
        const std::string bytes = ReadBytes(folder.Path() / "long").value_or("").substr(33);
        EXPECT_EQ(bytes.size(), std::min<std::size_t>(length + 6, 1023) + 2);
        EXPECT_EQ(TakeReports(), length > 1017 ? Reports({Check("! FAILED( hr )")}) : Reports());
    }
}

TEST(CheckSum, Fletcher) {
    EXPECT_EQ(FloatCheckSum(0.0f), 0xFFFFFFFF);
    EXPECT_EQ(FloatCheckSum(1.0f), 0x3F803F80);
    EXPECT_EQ(FloatCheckSum(-1.0f), 0xBF80BF80);
    EXPECT_EQ(DoubleCheckSum(1.0), 0x3FF03FF0);
    // More than a block: the folds between blocks change nothing but keep the sums from overflowing.
    const std::vector<std::uint32_t> units(1000, 0xFFFFFFFF);
    EXPECT_EQ(AddFletcher(units.data(), units.size()), 0xFFFFFFFF);
    for (const std::uint32_t unit : {0u, 1u, 0xFFFFu, 0x10000u, 0x80000000u, 0x12345678u, 0xFFFFFFFFu}) {
        EXPECT_EQ(AddFletcher(unit), AddFletcher(&unit, 1)) << unit;
    }
    EXPECT_EQ(AddFletcher(0x00010002), 0x00050003U);
    EXPECT_EQ(StringCheckSum(u"ab\xFFFF"), 0x61u + 0x62 + 0xFFFF);
}

template <std::size_t N>
void ExpectSumOfEach(std::mt19937& random) {
    std::array<float, N> values;
    std::uint32_t sum = 0;
    for (float& value : values) {
        const std::uint32_t unit = random() % 4 == 0 ? 0 : static_cast<std::uint32_t>(random());
        value = std::bit_cast<float>(unit);
        sum += AddFletcher(&unit, 1);
    }
    EXPECT_EQ(CheckSumOf(values), sum) << N;
}

// Four floats at a time, and what is left of each size of a value.
TEST(CheckSum, OfSeveralFloatsIsTheSumOfEach) {
    std::mt19937 random(7);
    for (int i = 0; i < 100; ++i) {
        ExpectSumOfEach<1>(random);
        ExpectSumOfEach<3>(random);
        ExpectSumOfEach<4>(random);
        ExpectSumOfEach<9>(random);
        ExpectSumOfEach<16>(random);
    }
}

// Each kind has its own rule for the sum, which may differ between the forms.
TEST_F(FileArchiveTest, CheckSumsOfBothForms) {
    constexpr std::uint32_t kHalf = 0x3F003F00;
    constexpr std::uint32_t kOne = 0x3F803F80;
    constexpr std::uint32_t kZero = 0xFFFFFFFF;
    Color color{0.5f, 0.0f, 1.0f, 1.0f};
    Rectangle rectangle{1, 2, 4, 8};
    Point point{5, -3};
    Vector3 vector3{0.0f, 1.0f, 0.5f};
    FixedString<20> string(u"ab");
    std::int64_t int64 = 99;
    Bool boolean = true;
    double real = 1.0;
    float single = 0.5f;
    std::int32_t integer = -5;
    Matrix33 matrix;
    struct Row {
        Fields fields;
        std::uint32_t text;
        std::uint32_t binary;
    };
    const Row rows[] = {
        {[&](FieldIo& io) { io.Color(u"k", color); }, 0, kHalf + kZero + kOne + kOne},
        {[&](FieldIo& io) { io.Rectangle(u"k", rectangle); }, 15, 15},
        {[&](FieldIo& io) { io.Point(u"k", point); }, 2, 2},
        {[&](FieldIo& io) { io.Vector3(u"k", vector3); }, kZero + kOne + kHalf, kZero + kOne + kHalf},
        {[&](FieldIo& io) { io.String(u"k", string); }, 0, 0x61 + 0x62},
        {[&](FieldIo& io) { io.Int64(u"k", int64); }, 0, 0},
        {[&](FieldIo& io) { io.Bool(u"k", boolean); }, 1, 1},
        {[&](FieldIo& io) { io.Double(u"k", real); }, 0x3FF03FF0, 0x3FF03FF0},
        {[&](FieldIo& io) { io.Float(u"k", single); }, kHalf, kHalf},
        {[&](FieldIo& io) { io.Int(u"k", integer); }, 0xFFFFFFFB, 0xFFFFFFFB},
        {[&](FieldIo& io) { io.Matrix33(u"k", matrix); }, 9 * kZero, 9 * kZero},
    };
    for (const Row& row : rows) {
        const std::string text = Written(FileArchiveType::Text, row.fields);
        const std::string binary = Written(FileArchiveType::Binary, row.fields);
        EXPECT_EQ(Read(std::string(kTextHeader) + text, row.fields), row.text) << text;
        EXPECT_EQ(Read(std::string(kBinaryHeader) + binary, row.fields), row.binary) << text;
    }
    // A value that could not be scanned adds what the field holds.
    EXPECT_EQ(Read("TXT\nk abc\n", [&](FieldIo& io) { io.Int(u"k", integer); }), 0xFFFFFFFB);
    EXPECT_EQ(TakeReports(), Reports({Check("result == 1")}));
}

TEST_F(FileArchiveTest, BitCountsAreForOtherForms) {
    for (const FileArchiveType form : {FileArchiveType::Text, FileArchiveType::Binary}) {
        FileArchive* archive = core->fileArchiveSystem.OpenForWrite(NameIn("bits"), false, form);
        archive->Write(u"value", 300u, 4);
        core->fileArchiveSystem.Close(archive);
        archive = core->fileArchiveSystem.OpenForRead(NameIn("bits"), false);
        std::uint32_t value = 0;
        archive->Read(u"value", value, 4);
        core->fileArchiveSystem.Close(archive);
        EXPECT_EQ(value, 300u);
    }
}

} // namespace

} // namespace Vorn
