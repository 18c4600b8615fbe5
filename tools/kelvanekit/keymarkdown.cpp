#include "tools/kelvanekit/keypage.h"

namespace Vorn {

namespace {

class MarkdownPage final : public KeyPage {
public:
    using KeyPage::KeyPage;

    void Begin(const KeyModel&, const KeySelection&) override { out += "# The keys of content files\n"; }
    void End() override {}

    std::string Text(std::string_view text) const override {
        std::string escaped;
        for (const char letter : text) {
            escaped += std::string_view("\\`*_[]<>|#").find(letter) != std::string_view::npos ? "\\" : "";
            escaped += letter;
        }
        return escaped;
    }
    std::string Code(std::string_view text) const override { return '`' + std::string(text) + '`'; }
    std::string Link(std::string_view section, const std::string& text) const override {
        return '[' + text + "](<#" + std::string(section) + ">)";
    }
    void Section(std::string_view name, std::string_view kind) override {
        out += "\n## <a id=\"" + std::string(name) + "\"></a>" + Text(name) + "\n\n" + Text(kind) + "\n";
    }
    void Paragraph(const std::string& text) override { out += '\n' + text + '\n'; }
    void BeginTable() override { out += "\n| Key | Value | When |\n|---|---|---|\n"; }
    void Row(std::string_view, const KeyRow& row, const std::string& kind, const std::string& when) override {
        std::string indentation;
        for (std::int32_t i = 0; i < row.depth; ++i) {
            indentation += "&emsp;";
        }
        out += "| " + indentation + (row.key->key.empty() ? "" : Code(row.key->key)) + " | " + kind + " | " + when +
               " |\n";
    }
    void EndTable() override {}
};

} // namespace

void PrintKeysAsMarkdown(std::string& out, const KeyModel& model, const KeySelection& selection) {
    MarkdownPage page(out);
    PrintKeyPage(page, model, selection);
}

} // namespace Vorn
