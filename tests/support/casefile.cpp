#include "tests/support/casefile.h"

#include "tests/support/tempfolder.h"

#include <algorithm>
#include <stdexcept>

namespace Vorn {

namespace {

Lines SplitLines(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

// Reads a case file line by line.
class Parser {
public:
    explicit Parser(CaseFile& _file) : file(_file) {}

    void Run() {
        for (; at < file.lines.size(); ++at) {
            std::string_view rest = file.lines[at];
            if (rest.empty()) {
                open = false;
                continue;
            }
            const std::string verb(TakeWord(rest));
            if (open) {
                ReadCaseLine(verb, rest);
            } else {
                ReadFileLine(verb, rest);
            }
        }
    }

private:
    Lines TakeGiven() {
        Lines given;
        while (at + 1 < file.lines.size() && file.lines[at + 1].starts_with('|')) {
            given.push_back(file.lines[++at].substr(1));
        }
        return given;
    }

    void ReadFileLine(const std::string& verb, std::string_view rest) {
        if (verb == "#") {
            return;
        }
        if (verb == "content") {
            file.contents[std::string(rest)] = TakeGiven();
        } else if (verb == "sample") {
            const std::string name(TakeWord(rest));
            file.contents[name] = FieldsOfText(ReadBytes(file.samples / rest).value());
        } else if (verb == "from") {
            from = rest;
        } else if (verb == "case") {
            Case started;
            started.name = rest;
            started.from = from;
            started.begin = at;
            started.end = at + 1;
            started.given = {file.lines[at]};
            file.cases.push_back(started);
            open = true;
        } else {
            Fail();
        }
    }

    void ReadCaseLine(const std::string& verb, std::string_view rest) {
        Case& last = file.cases.back();
        const std::size_t first = at;
        bool isGenerated = verb == "out" && !rest.starts_with("blank") && !rest.starts_with("text");
        if (verb == "#") {
            // A remark stays with its case.
        } else if (verb == "from") {
            last.from = rest;
        } else if (verb == "ends" || verb == "nothing") {
            (verb == "ends" ? last.ends : last.writesNothing) = true;
            isGenerated = true;
        } else if (verb == "each") {
            last.eachPath = rest;
            last.eachWords = TakeGiven();
        } else if (verb == "once") {
            last.changesAgain = true;
        } else if (verb == "missing" && rest == "any") {
            last.anyMissing = true;
        } else if (verb == "missing" || verb.starts_with("report") || verb.starts_with("check")) {
            last.reports.push_back({verb, std::string(rest), TakeGiven()});
            isGenerated = true;
        } else {
            const Side side = verb == "in" ? Side::In : verb == "out" ? Side::Out : Side::Both;
            const std::string name(side == Side::Both ? std::string_view(verb) : TakeWord(rest));
            last.edits.push_back({side, {name, std::string(rest), TakeGiven()}});
        }
        if (!isGenerated) {
            last.given.insert(last.given.end(), Iterator(first), Iterator(at + 1));
        }
        last.end = at + 1;
    }

    Lines::const_iterator Iterator(std::size_t index) const {
        return file.lines.begin() + static_cast<Lines::difference_type>(index);
    }

    [[noreturn]] void Fail() const {
        throw std::runtime_error(file.path.string() + ":" + std::to_string(at + 1) + ": " + file.lines[at]);
    }

    CaseFile& file;
    std::string from = "full";
    std::size_t at = 0;
    bool open = false;
};

} // namespace

Lines FieldsOfText(std::string text) {
    std::erase(text, '\r');
    Lines lines = SplitLines(text);
    lines.erase(lines.begin(), lines.begin() + 2);
    return lines;
}

std::string ConversionTypeOf(const std::string& name) {
    const std::string kind = name.substr(0, name.find('_'));
    return kind == "brushes" || kind == "mesh" || kind == "particle" ? kind : "entity";
}

CaseFile::CaseFile(const std::filesystem::path& _path, const std::filesystem::path& _samples)
    : path(_path), samples(_samples), type(ConversionTypeOf(path.stem())), lines(SplitLines(ReadBytes(path).value())) {
    Parser(*this).Run();
}

void CaseFile::Update(const Case& updated, const Lines& generated) {
    Lines block = updated.given;
    block.insert(block.end(), generated.begin(), generated.end());
    updates[updated.begin] = {updated.end, block};
    std::string text;
    const auto put = [&](const std::string& line) { text += line + '\n'; };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (const auto found = updates.find(i); found != updates.end()) {
            std::for_each(found->second.second.begin(), found->second.second.end(), put);
            i = found->second.first - 1;
        } else {
            put(lines[i]);
        }
    }
    WriteBytes(path, text);
}

} // namespace Vorn
