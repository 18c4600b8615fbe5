const {workspace} = require("vscode");
const {LanguageClient} = require("vscode-languageclient/node");

let client;

exports.activate = () => {
    const settings = workspace.getConfiguration("kelvane");
    client = new LanguageClient("kelvane", "Kelvane", {command: settings.get("program"), args: ["lsp"]}, {
        documentSelector: [{language: "kelvane"}],
        initializationOptions: {names: settings.get("names")}
    });
    return client.start();
};

exports.deactivate = () => client?.stop();
