// Colours all samples with the grammar, by the engine that editors use: node tokenise.mjs GRAMMAR MODULES FILE...
// Every line has to have a key, and none but the first words of lines may be left without a colour.
import {readFileSync} from "node:fs";
import {createRequire} from "node:module";

const [grammarFile, modules, ...files] = process.argv.slice(2);
const require = createRequire(modules + "/");
const {Registry, parseRawGrammar, INITIAL} = require("vscode-textmate");
const oniguruma = require("vscode-oniguruma");
await oniguruma.loadWASM(readFileSync(require.resolve("vscode-oniguruma/release/onig.wasm")));
const registry = new Registry({
    onigLib: Promise.resolve({
        createOnigScanner: (patterns) => new oniguruma.OnigScanner(patterns),
        createOnigString: (text) => new oniguruma.OnigString(text)
    }),
    loadGrammar: async () => parseRawGrammar(readFileSync(grammarFile, "utf8"), grammarFile)
});
const grammar = await registry.loadGrammar("source.kelvane");

let failures = 0;
for (const file of files) {
    let state = INITIAL;
    readFileSync(file, "utf8").split(/\r?\n/).forEach((line, number) => {
        const {tokens, ruleStack} = grammar.tokenizeLine(line, state);
        state = ruleStack;
        for (const token of tokens) {
            const text = line.slice(token.startIndex, token.endIndex);
            const scope = token.scopes.at(-1);
            if (text.trim() !== "" && (scope === "source.kelvane" || scope.startsWith("variable.other"))) {
                console.error(`${file}:${number + 1}: no colour for: ${text}`);
                failures += 1;
            }
        }
    });
}
process.exit(failures === 0 ? 0 : 1);
