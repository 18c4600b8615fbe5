#pragma once

#include <string>
#include <string_view>

namespace Vorn {

// Converts files inside this process, for tests that need hundreds of thousands of conversions. An abnormal end is
// caught and counts as an end like any other; so does one report too many. Reports are dropped.
class InProcessConversion {
public:
    // Takes the conversion type as the command line does. The files stand in a folder of their own, in memory where
    // there is such a folder; the source of a conversion that crashed stays there.
    explicit InProcessConversion(std::string_view _type);
    InProcessConversion(const InProcessConversion&) = delete;
    InProcessConversion& operator=(const InProcessConversion&) = delete;
    ~InProcessConversion();

    const std::string& SourcePath() const { return source; }

    // Writes both forms of a source, and of some without angles the binary form twice more: one pass may still
    // normalise, but the next must change nothing. False if it did. Some sources are also read with a failure on the
    // way, some meshes are searched for, and some conversions go on for many reports.
    bool Convert(std::string_view bytes);

private:
    static constexpr int kFewReports = 200;
    static constexpr int kManyReports = 20000;

    template <class Conversion>
    bool Guarded(Conversion convert) const;
    void RunWithFailingReads(std::size_t soundBytes) const;
    void RunWithSearch() const;
    bool Run(const std::string& from, const std::string& to, std::u16string_view form) const;

    std::u16string type;
    std::string folder;
    std::string source;
    std::string text;
    std::string binary;
    std::string settledBinary;
    int mostReports = kFewReports;
};

} // namespace Vorn
