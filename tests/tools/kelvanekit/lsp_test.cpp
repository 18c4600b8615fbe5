#include "fuzz/damage.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvanekit/fileuri.h"
#include "tools/kelvanekit/lsp/languageserver.h"
#include "tools/kelvanekit/lsp/messagestream.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Vorn {

namespace {

using Json = nlohmann::json;

class LanguageServerTest : public testing::Test {
protected:
    void Start(const Json& capabilities = Json::object(), const Json& options = Json()) {
        Ask("initialize",
            {{"capabilities", capabilities},
             {"initializationOptions", options},
             {"workspaceFolders", Json::array({{{"uri", UriOfFile(folder.Path().string())}, {"name", "w"}}})}});
        Tell("initialized", Json::object());
    }
    // The answer to a request: its result, or its error.
    Json Ask(const std::string& method, const Json& params) {
        sent.clear();
        server.Handle({{"jsonrpc", "2.0"}, {"id", 7}, {"method", method}, {"params", params}});
        EXPECT_EQ(sent.size(), 1U);
        EXPECT_EQ(sent.at(0)["id"], 7);
        return sent[0].contains("error") ? sent[0]["error"] : sent[0]["result"];
    }
    void Tell(const std::string& method, const Json& params) {
        server.Handle({{"jsonrpc", "2.0"}, {"method", method}, {"params", params}});
    }
    // Opens a document and returns what is published of it.
    Json Open(const std::string& name, const std::string& text) {
        uri = UriOfFile((folder.Path() / name).string());
        sent.clear();
        Tell("textDocument/didOpen",
             {{"textDocument", {{"uri", uri}, {"languageId", "kelvane"}, {"version", 1}, {"text", text}}}});
        return Published();
    }
    Json Published() {
        sent.clear();
        server.PublishChanged();
        return sent.empty() ? Json() : sent.back()["params"]["diagnostics"];
    }
    Json At(int line, int character) const {
        return {{"textDocument", {{"uri", uri}}}, {"position", {{"line", line}, {"character", character}}}};
    }
    Json Document() const { return {{"textDocument", {{"uri", uri}}}}; }
    Json Type(int line, int begin, int end, const std::string& text) {
        const Json range = {{"start", {{"line", line}, {"character", begin}}},
                            {"end", {{"line", line}, {"character", end}}}};
        Tell("textDocument/didChange", {{"textDocument", {{"uri", uri}, {"version", 2}}},
                                        {"contentChanges", Json::array({{{"range", range}, {"text", text}}})}});
        return Published();
    }
    // A sample as an editor has it, with line feeds alone.
    static std::string Sample(const std::string& name) {
        std::string text = *ReadBytes(std::filesystem::path(KELVANE_SAMPLES) / name);
        std::erase(text, '\r');
        return text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text;
    }
    static int LineWith(const std::string& text, std::string_view part) {
        const std::size_t place = text.find(part);
        EXPECT_NE(place, std::string::npos) << part;
        return static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
    }
    static std::vector<std::string> Labels(const Json& completions) {
        std::vector<std::string> labels;
        for (const Json& item : completions["items"]) {
            labels.push_back(item["label"]);
        }
        return labels;
    }

    TempFolder folder;
    std::vector<Json> sent;
    LanguageServer server{[this](const Json& message) { sent.push_back(message); }};
    std::string uri;
    const std::string frigate = Sample("entity/frigate_lancer.entity");
};

TEST_F(LanguageServerTest, MistakesAreUnderlinedAndCured) {
    Start();
    EXPECT_EQ(Open("a.entity", frigate), Json::array());
    const int line = LineWith(frigate, "frigateRoleType \"");
    const Json wrong = Type(line, 17, 22, "light");
    ASSERT_EQ(wrong.size(), 1U) << wrong;
    EXPECT_EQ(wrong[0]["code"], "wrong-case-text");
    EXPECT_EQ(wrong[0]["severity"], 1);
    EXPECT_EQ(wrong[0]["range"]["start"]["line"], line);
    EXPECT_EQ(sent.back()["params"]["version"], 2);
    Json params = Document();
    params["range"] = wrong[0]["range"];
    params["context"] = {{"diagnostics", wrong}};
    const Json actions = Ask("textDocument/codeAction", params);
    ASSERT_EQ(actions.size(), 1U) << actions;
    const Json edit = actions[0]["edit"]["changes"][uri][0];
    EXPECT_EQ(Type(line, edit["range"]["start"]["character"], edit["range"]["end"]["character"], edit["newText"]),
              Json::array());
}

TEST_F(LanguageServerTest, MissingLinesAreInserted) {
    Start();
    for (const std::string_view part : {"BuildTime 28.000000\n", "MaxHullPoints\n"}) {
        std::string lacking = frigate;
        lacking.erase(lacking.find(part), part.size());
        const Json missing = Open("a.entity", lacking);
        ASSERT_EQ(missing.size(), 1U) << missing;
        Json params = Document();
        params["range"] = missing[0]["range"];
        const Json actions = Ask("textDocument/codeAction", params);
        ASSERT_EQ(actions.size(), 1U) << actions;
        const Json edit = actions[0]["edit"]["changes"][uri][0];
        EXPECT_EQ(edit["newText"], part.starts_with("Build") ? "BuildTime 0.000000\n" : part);
        EXPECT_EQ(edit["range"]["start"]["line"], LineWith(frigate, part));
    }
}

TEST_F(LanguageServerTest, PositionsAreCountedAsTheClientWishes) {
    const std::string text = "TXT2\nZephArchiveVersion 194\n\xF0\x9F\x9A\x80 \xC3\xA9 1\n";
    const LineIndex lines(text);
    const std::size_t byte = text.find("\xC3\xA9");
    EXPECT_EQ(lines.PositionOf(text, byte, PositionUnits::Utf16).character, 3);
    EXPECT_EQ(lines.PositionOf(text, byte, PositionUnits::Utf8).character, 5);
    EXPECT_EQ(lines.ByteOf(text, {2, 3}, PositionUnits::Utf16), byte);
    EXPECT_EQ(lines.ByteOf(text, {2, 5}, PositionUnits::Utf8), byte);
    EXPECT_EQ(lines.ByteOf(text, {2, 99}, PositionUnits::Utf16), text.size() - 1);
    EXPECT_EQ(lines.ByteOf(text, {99, 0}, PositionUnits::Utf16), text.size());
    EXPECT_EQ(LineIndex("a\rb\r\nc\n").LineCount(), 4);
    Start({{"general", {{"positionEncodings", {"utf-32", "utf-8"}}}}});
    EXPECT_EQ(Ask("initialize", Json::object())["code"], -32600);
}

TEST_F(LanguageServerTest, KeysAndTextsAreOffered) {
    WriteBytes(folder.Path() / "FrigateBlast.particle", "");
    Start();
    const int line = LineWith(frigate, "frigateRoleType \"");
    Open("a.entity", frigate);
    const std::vector<std::string> texts = Labels(Ask("textDocument/completion", At(line, 17)));
    EXPECT_TRUE(std::ranges::find(texts, "\"Light\"") != texts.end());
    EXPECT_EQ(Labels(Ask("textDocument/completion", At(LineWith(frigate, "hasLevels"), 10))),
              (std::vector<std::string>{"TRUE", "FALSE"}));
    const int explosion = LineWith(frigate, "ExplosionName");
    EXPECT_EQ(Labels(Ask("textDocument/completion", At(explosion, 15))), std::vector<std::string>{"\"FrigateBlast\""});
    // A line that is gone is offered where it stood, with its default.
    std::string lacking = frigate;
    const std::size_t begin = lacking.find("BuildTime");
    lacking.replace(begin, lacking.find('\n', begin) - begin, "Bui");
    Open("b.entity", lacking);
    const Json items = Ask("textDocument/completion", At(LineWith(frigate, "BuildTime"), 3))["items"];
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items[0]["label"], "BuildTime");
    EXPECT_EQ(items[0]["textEdit"]["newText"], "BuildTime 0.000000");
}

TEST_F(LanguageServerTest, ASectionIsOfferedWithItsLines) {
    Start({{"textDocument", {{"completion", {{"completionItem", {{"snippetSupport", true}}}}}}}});
    std::string lacking = frigate;
    const std::size_t begin = lacking.find("MaxHullPoints\n");
    lacking.replace(begin, lacking.find("MaxShieldPoints\n") - begin, "\n");
    Open("a.entity", lacking);
    const Json items = Ask("textDocument/completion", At(LineWith(frigate, "MaxHullPoints\n"), 0))["items"];
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items[0]["label"], "MaxHullPoints");
    EXPECT_EQ(items[0]["textEdit"]["newText"],
              "MaxHullPoints\n\tLevel:0 ${1:0.000000}\n\tLevel:1 ${2:0.000000}\n\tLevel:2 ${3:0.000000}\n"
              "\tLevel:3 ${4:0.000000}");
}

TEST_F(LanguageServerTest, EntriesOfListsAreOffered) {
    Start();
    const std::string raider = "frigateRoleType \"Raider\"\n";
    std::string text = frigate;
    text.replace(text.find(raider), raider.size(), "\n");
    Open("a.entity", text);
    const int line = LineWith(frigate, raider);
    EXPECT_EQ(Labels(Ask("textDocument/completion", At(line, 0))), std::vector<std::string>{"frigateRoleType"});
    // There is no room for a fourth.
    Type(line, 0, 0, raider);
    EXPECT_EQ(Labels(Ask("textDocument/completion", At(line + 1, 0))), std::vector<std::string>{});
    // A list that has no entry yet.
    text = frigate;
    text.replace(text.find("NumWeapons"), text.find("m_weaponIndexForRange") - text.find("NumWeapons"),
                 "NumWeapons 0\n\n");
    Open("b.entity", text);
    const Json weapon = Ask("textDocument/completion", At(LineWith(text, "NumWeapons") + 1, 0))["items"];
    ASSERT_FALSE(weapon.empty());
    EXPECT_TRUE(std::string(weapon[0]["textEdit"]["newText"]).starts_with("Weapon\n\tWeaponType \"")) << weapon[0];
}

TEST_F(LanguageServerTest, KeysAreExplained) {
    Start();
    Open("a.entity", frigate);
    const std::string text =
        Ask("textDocument/hover", At(LineWith(frigate, "frigateRoleType \""), 3))["contents"]["value"];
    EXPECT_NE(text.find("`Light`"), std::string::npos) << text;
    const std::string level =
        Ask("textDocument/hover", At(LineWith(frigate, "MaxHullPoints") + 2, 3))["contents"]["value"];
    EXPECT_NE(level.find("**MaxHullPoints.Level:1**"), std::string::npos) << level;
    EXPECT_TRUE(Ask("textDocument/hover", At(0, 0)).is_null());
}

TEST_F(LanguageServerTest, NamesAreFoundInTheWorkspace) {
    WriteBytes(folder.Path() / "AbilityOverchargedLance.entity", Sample("entity/ability_field_repair.entity"));
    WriteBytes(folder.Path() / "other.entity", frigate);
    Start();
    Open("a.entity", frigate);
    const int line = LineWith(frigate, "\"AbilityOverchargedLance\"");
    const Json definition = Ask("textDocument/definition", At(line, 15));
    EXPECT_EQ(definition["uri"], UriOfFile((folder.Path() / "AbilityOverchargedLance.entity").string()));
    Json params = At(line, 15);
    params["context"] = {{"includeDeclaration", false}};
    const Json references = Ask("textDocument/references", params);
    ASSERT_EQ(references.size(), 2U) << references;
    EXPECT_EQ(references[0]["range"]["start"]["line"], line);
    const Json symbols = Ask("workspace/symbol", {{"query", "overcharged"}});
    ASSERT_EQ(symbols.size(), 1U);
    EXPECT_EQ(symbols[0]["name"], "AbilityOverchargedLance");
}

TEST_F(LanguageServerTest, NamesThatTheWorkspaceLacksAreReported) {
    const auto isMissing = [](const Json& diagnostics) {
        return std::ranges::any_of(diagnostics, [](const Json& diagnostic) {
            return diagnostic["code"] == "unresolved-name" &&
                   std::string(diagnostic["message"]).find("AbilityOverchargedLance") != std::string::npos;
        });
    };
    WriteBytes(folder.Path() / "a.entity", frigate);
    Start({{"workspace", {{"didChangeWatchedFiles", {{"dynamicRegistration", true}}}}}});
    EXPECT_EQ(sent.back()["method"], "client/registerCapability");
    // A document that stands alone does not tell what there is elsewhere.
    EXPECT_EQ(Open("a.entity", frigate), Json::array());
    const auto write = [&](const char* name) {
        WriteBytes(folder.Path() / name, Sample("entity/ability_field_repair.entity"));
        Tell("workspace/didChangeWatchedFiles", {{"changes", Json::array()}});
        return Published();
    };
    EXPECT_TRUE(isMissing(write("AbilityOther.entity")));
    EXPECT_FALSE(isMissing(write("AbilityOverchargedLance.entity")));
    std::filesystem::remove(folder.Path() / "AbilityOverchargedLance.entity");
    Tell("textDocument/didSave", Document());
    EXPECT_TRUE(isMissing(Published()));
    // Nor does the workspace tell of the names in a document from elsewhere.
    EXPECT_EQ(Open("../elsewhere.entity", frigate), Json::array());
    // What is right but for them can be formatted.
    std::string loose = frigate;
    loose.replace(loose.find("BuildTime 28.000000"), 19, "BuildTime   28");
    EXPECT_TRUE(isMissing(Open("a.entity", loose)));
    EXPECT_EQ(Ask("textDocument/formatting", Document()).size(), 1U);
}

TEST_F(LanguageServerTest, NamesAreNotCheckedForThoseWhoDoNotWantIt) {
    WriteBytes(folder.Path() / "a.entity", frigate);
    WriteBytes(folder.Path() / "AbilityOther.entity", Sample("entity/ability_field_repair.entity"));
    Start(Json::object(), {{"names", false}});
    EXPECT_EQ(Open("a.entity", frigate), Json::array());
}

TEST_F(LanguageServerTest, SectionsAreListedAndFolded) {
    Start();
    Open("a.entity", frigate);
    const Json symbols = Ask("textDocument/documentSymbol", Document());
    const auto found =
        std::ranges::find(symbols, Json("MaxHullPoints"), [](const Json& symbol) { return symbol["name"]; });
    ASSERT_NE(found, symbols.end());
    const int line = LineWith(frigate, "MaxHullPoints");
    EXPECT_EQ((*found)["range"]["start"]["line"], line);
    EXPECT_EQ((*found)["range"]["end"]["line"], line + 4);
    const Json foldings = Ask("textDocument/foldingRange", Document());
    EXPECT_NE(std::ranges::find(foldings, Json{{"startLine", line}, {"endLine", line + 4}}), foldings.end());
}

TEST_F(LanguageServerTest, FormattingLosesNothing) {
    Start();
    Open("a.entity", frigate);
    std::string loose = frigate;
    loose.replace(loose.find("BuildTime 28.000000"), 19, "BuildTime   28");
    Open("b.entity", loose);
    const Json edits = Ask("textDocument/formatting", Document());
    ASSERT_EQ(edits.size(), 1U);
    EXPECT_EQ(edits[0]["newText"], "BuildTime 28.000000\n");
    EXPECT_EQ(edits[0]["range"]["start"]["line"], LineWith(frigate, "BuildTime"));
    EXPECT_EQ(edits[0]["range"]["end"]["line"], LineWith(frigate, "BuildTime") + 1);
    Open("a.entity", frigate);
    EXPECT_EQ(Ask("textDocument/formatting", Document()), Json::array());
    Open("b.entity", loose);
    loose.replace(loose.find("BuildTime   28"), 14, "BuildTime 28x ");
    Open("c.entity", loose);
    EXPECT_EQ(Ask("textDocument/formatting", Document()), Json::array());
}

TEST_F(LanguageServerTest, MessagesAreAnsweredInAnyOrder) {
    EXPECT_EQ(Ask("textDocument/hover", At(0, 0))["code"], -32002);
    Start();
    EXPECT_EQ(Ask("textDocument/hover", At(0, 0))["code"], -32602);
    EXPECT_EQ(Ask("textDocument/hover", 3)["code"], -32602);
    EXPECT_EQ(Ask("no/such", Json())["code"], -32601);
    sent.clear();
    Tell("no/such", Json());
    Tell("textDocument/didChange", Json::array());
    EXPECT_TRUE(sent.empty());
    server.Handle(Json::parse("{", nullptr, false));
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0]["error"]["code"], -32700);
    sent.clear();
    server.Handle({{"id", 1}, {"method", "workspace/symbol"}, {"params", {{"query", ""}}}}, true);
    EXPECT_EQ(sent.at(0)["error"]["code"], -32800);
    EXPECT_TRUE(Ask("shutdown", Json()).is_null());
    EXPECT_EQ(Ask("workspace/symbol", {{"query", ""}})["code"], -32600);
    EXPECT_FALSE(server.HasEnded());
    Tell("exit", Json());
    EXPECT_TRUE(server.HasEnded());
    EXPECT_EQ(server.ExitStatus(), 0);
}

std::string Framed(const Json& message) {
    const std::string content = message.dump();
    return "Content-Length: " + std::to_string(content.size()) + "\r\n\r\n" + content;
}

// Bytes of a client, a few at a time.
ReadBytesFunction Reading(std::string bytes) {
    return [bytes = std::move(bytes), place = std::size_t{0}](char* out, std::size_t count) mutable {
        const std::size_t part = std::min({count, bytes.size() - place, std::size_t{13}});
        bytes.copy(out, part, place);
        place += part;
        return part;
    };
}

TEST(MessageStreamTest, MessagesAreTakenApart) {
    MessageParser parser(Reading("content-length:2\r\nContent-Type: x\r\n\r\n{}\r\n\r\nContent-Length: 3\n\n123"
                                 "No-Length: 1\r\n\r\nContent-Length: 9\r\n\r\nhalf"));
    EXPECT_EQ(parser.Next(), "{}");
    EXPECT_EQ(parser.Next(), "123");
    EXPECT_EQ(parser.Next(), "");
    EXPECT_EQ(parser.Next(), std::nullopt);
}

TEST(MessageStreamTest, RequestsAreCancelledBeforeTheirTurn) {
    MessageQueue queue(Reading(Framed({{"id", 1}, {"method", "a"}}) + Framed({{"id", 2}, {"method", "b"}}) +
                               Framed({{"method", "$/cancelRequest"}, {"params", {{"id", 2}}}}) +
                               Framed({{"method", "exit"}})));
    while (!queue.HasNext()) {
    }
    // The last one is there when the others are.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(queue.Next()->isCancelled);
    EXPECT_TRUE(queue.Next()->isCancelled);
    EXPECT_EQ(queue.Next()->json["method"], "exit");
    EXPECT_FALSE(queue.Next());
}

// Whole sessions of damaged bytes: nothing but answers may come of them.
TEST_F(LanguageServerTest, DamagedSessionsAreSurvived) {
    std::string session;
    const Json capabilities = {{"capabilities", Json::object()}};
    uri = UriOfFile((folder.Path() / "a.entity").string());
    session += Framed({{"id", 0}, {"method", "initialize"}, {"params", capabilities}});
    session += Framed({{"method", "textDocument/didOpen"},
                       {"params", {{"textDocument", {{"uri", uri}, {"text", frigate.substr(0, 3000)}}}}}});
    for (const char* method :
         {"completion", "hover", "definition", "references", "documentSymbol", "foldingRange", "formatting"}) {
        session += Framed({{"id", method}, {"method", std::string("textDocument/") + method}, {"params", At(9, 4)}});
    }
    session += Framed({{"id", 8}, {"method", "shutdown"}}) + Framed({{"method", "exit"}});
    Random random(31);
    for (int i = 0; i < 60; ++i) {
        int answers = 0;
        LanguageServer other([&](const Json& message) { answers += message.contains("id") ? 1 : 0; });
        MessageParser parser(Reading(i == 0 ? session : Damage(session, {session}, random)));
        while (const std::optional<std::string> content = parser.Next()) {
            other.Handle(Json::parse(*content, nullptr, false));
            other.PublishChanged();
        }
        EXPECT_TRUE(i > 0 || answers == 9) << answers;
    }
}

} // namespace

} // namespace Vorn
