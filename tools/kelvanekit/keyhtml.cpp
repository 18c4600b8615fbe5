#include "tools/kelvanekit/keypage.h"
#include "tools/kelvanekit/version.h"

#include <set>

namespace Vorn {

namespace {

constexpr std::string_view kHead = R"html(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>The keys of content files</title>
<style>
:root { --back: #fff; --text: #1c2126; --soft: #59636e; --line: #d9dee3; --strip: #f3f5f7; --link: #0b57a8;
  --mark: #fff3bf; }
@media (prefers-color-scheme: dark) {
  :root { --back: #14181c; --text: #e3e7ea; --soft: #9aa5b0; --line: #323a42; --strip: #1d2329; --link: #7db8f5;
    --mark: #4a4113; }
}
* { box-sizing: border-box; }
html { scroll-padding-top: 4rem; }
body { margin: 0; background: var(--back); color: var(--text); font: 1rem/1.45 system-ui, sans-serif; }
a { color: var(--link); text-decoration: none; }
a:hover { text-decoration: underline; }
:focus-visible { outline: 2px solid var(--link); outline-offset: 2px; }
header { position: sticky; top: 0; z-index: 1; display: flex; gap: .75rem; align-items: center; padding: .6rem 1rem;
  background: var(--back); border-bottom: 1px solid var(--line); }
header h1 { flex: 1; margin: 0; font-size: 1.05rem; white-space: nowrap; overflow: hidden; text-overflow: ellipsis; }
input { flex: 1 1 12rem; min-width: 0; max-width: 26rem; padding: .4rem .6rem; color: inherit; background: var(--strip);
  border: 1px solid var(--line); border-radius: .4rem; font: inherit; }
#count { color: var(--soft); font-size: .85rem; white-space: nowrap; }
.skip { position: absolute; left: -99rem; }
.skip:focus { left: 1rem; z-index: 2; background: var(--back); }
.page { display: grid; grid-template-columns: 17rem minmax(0, 1fr); }
nav { position: sticky; top: 3.4rem; align-self: start; max-height: calc(100vh - 3.4rem); overflow: auto;
  padding: 1rem; border-right: 1px solid var(--line); font-size: .9rem; }
nav summary { cursor: pointer; font-weight: 600; margin: .3rem 0; }
nav a { display: block; padding: .1rem .4rem; overflow-wrap: anywhere; }
main { padding: 0 1.2rem 4rem; max-width: 76rem; }
section h2 { margin: 2.2rem 0 .1rem; font-size: 1.3rem; overflow-wrap: anywhere; }
section > p { color: var(--soft); margin: .4rem 0; overflow-wrap: anywhere; }
.kind { margin-top: 0; }
table { width: 100%; border-collapse: collapse; margin: .6rem 0; }
th { text-align: left; font-size: .8rem; color: var(--soft); }
th, td { padding: .22rem .5rem; vertical-align: top; border-bottom: 1px solid var(--line); overflow-wrap: anywhere; }
td:first-child { width: 32%; }
td:last-child { width: 26%; color: var(--soft); }
td:first-child, code { font-family: ui-monospace, Menlo, Consolas, monospace; font-size: .88em; }
tr:target, section:target h2 { background: var(--mark); }
[hidden] { display: none; }
@media (max-width: 48rem) {
  header { flex-wrap: wrap; } header h1 { flex-basis: 100%; } .page { display: block; }
  nav { position: static; max-height: none; border-right: 0; border-bottom: 1px solid var(--line); }
  nav a { display: inline-block; padding: .35rem .5rem; }
  thead { display: none; } tr, td { display: block; } td { border: 0; padding: .05rem 0; }
  td:first-child, td:last-child { width: auto; } tr { padding: .4rem 0; border-bottom: 1px solid var(--line); }
  html { scroll-padding-top: 6.5rem; }
}
</style>
</head>
<body>
<a class="skip" href="#top">Skip to the keys</a>
<header><h1>The keys of content files</h1>
<input id="search" type="search" placeholder="Search keys and texts  ( / )" aria-label="Search keys and texts"
  autocomplete="off" spellcheck="false"><span id="count" role="status"></span></header>
<div class="page">
)html";

constexpr std::string_view kFoot = R"html(</main>
</div>
<script>
const search = document.getElementById('search'), count = document.getElementById('count');
const sections = [...document.querySelectorAll('section')].map(element => ({
  element, name: element.id.toLowerCase(),
  rows: [...element.querySelectorAll('tbody tr')].map(row =>
    ({element: row, text: row.cells[0].textContent.toLowerCase()})),
  words: element.dataset.texts === undefined ? '' : element.textContent.toLowerCase()}));
// The links that a search leads to.
let hits = [];
function show() {
  const wanted = search.value.trim().toLowerCase();
  hits = [];
  for (const section of sections) {
    const whole = section.name.includes(wanted) || (section.words && section.words.includes(wanted));
    const before = hits.length;
    if (whole) { hits.push(section.element.querySelector('h2 a')); }
    for (const row of section.rows) {
      const isHit = row.text.includes(wanted);
      row.element.hidden = !whole && !isHit;
      if (isHit) { hits.push(row.element.querySelector('a')); }
    }
    section.element.hidden = wanted !== '' && hits.length === before;
  }
  if (wanted === '') { hits = []; }
  count.textContent = wanted === '' ? '' : hits.length + ' found';
}
function leave() { search.value = ''; show(); }
function reveal() {
  leave();
  document.getElementById(decodeURIComponent(location.hash.slice(1)))?.scrollIntoView();
}
function select(link) { link.focus({preventScroll: true}); link.scrollIntoView({block: 'center'}); }
if (innerWidth <= 768) { document.querySelectorAll('nav details').forEach(part => { part.open = false; }); }
search.addEventListener('input', show);
document.addEventListener('keydown', event => {
  const active = document.activeElement, place = hits.indexOf(active);
  if (event.key === '/' && active !== search) {
    event.preventDefault(); search.focus(); search.select();
  } else if ((event.key === 'ArrowDown' || event.key === 'ArrowUp') && hits.length && (active === search || place >= 0)) {
    event.preventDefault();
    const next = place + (event.key === 'ArrowDown' ? 1 : -1);
    if (next < 0) { search.focus(); } else { select(hits[Math.min(next, hits.length - 1)]); }
  } else if (event.key === 'Enter' && active === search && hits.length) {
    select(hits[0]); hits[0].click();
  } else if (event.key === 'Escape') {
    leave();
    if (place >= 0) { select(active); } else { search.blur(); }
  }
});
document.addEventListener('click', event => {
  if (search.value && event.target.closest('a')?.hash === location.hash) { reveal(); }
});
window.addEventListener('hashchange', () => { if (search.value) { reveal(); } });
</script>
</body>
</html>
)html";

class HtmlPage final : public KeyPage {
public:
    using KeyPage::KeyPage;

    void Begin(const KeyModel& model, const KeySelection& selection) override {
        out += kHead;
        out += "<nav aria-label=\"Contents\">\n";
        const auto isFile = [](const RecordDescription& record) { return !record.type.empty(); };
        const auto isShared = [](const RecordDescription& record) { return record.type.empty() && HasSection(record); };
        PrintContents("Types and classes", model, selection, isFile);
        PrintContents("Records in several places", model, selection, isShared);
        if (selection.isAll) {
            out += "<details><summary>Texts of enumerations</summary>\n";
            for (const auto& [name, texts] : model.choices) {
                out += Link(name, Text(name)) + '\n';
            }
            out += "</details>\n";
        }
        out += "</nav>\n<main id=\"top\">\n<p>kelvane " + Text(kVersion) +
               ". Keys stand in a file in this order. <code>kelvane-kit new</code> begins a file, "
               "<code>kelvane-kit check</code> tells what is wrong with one.</p>\n";
    }

    void End() override {
        CloseSection();
        out += kFoot;
    }

    std::string Text(std::string_view text) const override {
        std::string escaped;
        for (const char letter : text) {
            switch (letter) {
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '&':
                escaped += "&amp;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += letter;
            }
        }
        return escaped;
    }
    std::string Code(std::string_view text) const override { return "<code>" + Text(text) + "</code>"; }
    std::string Link(std::string_view section, const std::string& text) const override {
        return "<a href=\"#" + IdOf(section) + "\">" + text + "</a>";
    }

    void Section(std::string_view name, std::string_view kind) override {
        CloseSection();
        const bool isOfTexts = kind.starts_with("the texts");
        out += "<section id=\"" + IdOf(name) + (isOfTexts ? "\" data-texts" : "\"") + "><h2>" + Link(name, Text(name)) +
               "</h2>\n<p class=\"kind\">" + Text(kind) + "</p>\n";
        isInSection = true;
    }
    void Paragraph(const std::string& text) override { out += "<p>" + text + "</p>\n"; }
    void BeginTable() override { out += "<table><thead><tr><th>Key<th>Value<th>When</tr></thead><tbody>\n"; }
    void Row(std::string_view section, const KeyRow& row, const std::string& kind, const std::string& when) override {
        std::string id = IdOf(std::string(section) + '.' + row.path);
        const std::string first = id;
        for (int number = 2; !ids.insert(id).second; ++number) {
            id = first + '-' + std::to_string(number);
        }
        out += "<tr id=\"" + id + "\"><td style=\"padding-left:" + std::to_string(row.depth) + ".5em\">";
        out += row.key->key.empty() ? "" : "<a href=\"#" + id + "\">" + Text(row.key->key) + "</a>";
        out += "<td>" + kind + "<td>" + when + "</tr>\n";
    }
    void EndTable() override { out += "</tbody></table>\n"; }

private:
    // Blanks may not stand in an id.
    std::string IdOf(std::string_view name) const {
        std::string id = Text(name);
        for (char& letter : id) {
            letter = letter == ' ' ? '_' : letter;
        }
        return id;
    }

    void CloseSection() {
        out += isInSection ? "</section>\n" : "";
        isInSection = false;
    }

    template <class IsListed>
    void PrintContents(const char* title, const KeyModel& model, const KeySelection& selection, IsListed isListed) {
        out += "<details open><summary>" + std::string(title) + "</summary>\n";
        for (const std::int32_t index : WithParts(model, selection.records)) {
            const RecordDescription& record = model.records[static_cast<std::size_t>(index)];
            if (isListed(record)) {
                out += Link(record.name, Text(record.name)) + '\n';
            }
        }
        out += "</details>\n";
    }

    bool isInSection = false;
    std::set<std::string> ids;
};

} // namespace

void PrintKeysAsHtml(std::string& out, const KeyModel& model, const KeySelection& selection) {
    HtmlPage page(out);
    PrintKeyPage(page, model, selection);
}

} // namespace Vorn
