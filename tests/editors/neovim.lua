-- Opens a broken content in Neovim as an author would: what is wrong is shown at its line, texts are offered, and the
-- cures make the content clean. Run by scripts/check-editors; `arg` is not used.
local function fail(text)
  io.stderr:write('Neovim: ' .. text .. '\n')
  vim.cmd('cquit 1')
end

local function wait_for(what, condition)
  if not vim.wait(20000, condition, 20) then
    fail('waited in vain for ' .. what)
  end
end

vim.cmd('edit broken.entity')
local buffer = vim.api.nvim_get_current_buf()
wait_for('the client', function() return #vim.lsp.buf_get_clients(buffer) == 1 or next(vim.lsp.buf_get_clients(buffer)) end)
wait_for('findings', function() return #vim.diagnostic.get(buffer) == 2 end)

local lines = {}
for _, diagnostic in ipairs(vim.diagnostic.get(buffer)) do
  lines[#lines + 1] = vim.api.nvim_buf_get_lines(buffer, diagnostic.lnum, diagnostic.lnum + 1, true)[1]
end
table.sort(lines)
if not lines[1]:find('^\tLevel:0 620,5') or not lines[2]:find('^frigateRoleType "light"') then
  fail('findings at other lines: ' .. vim.inspect(lines))
end

-- The allowed texts behind the key.
local line = vim.fn.search('^frigateRoleType "') - 1
local answers = vim.lsp.buf_request_sync(buffer, 'textDocument/completion', {
  textDocument = vim.lsp.util.make_text_document_params(buffer),
  position = {line = line, character = 17},
}, 20000)
local offered = {}
for _, answer in pairs(answers) do
  for _, item in ipairs(answer.result.items) do
    offered[item.label] = true
  end
end
if not offered['"Light"'] or not offered['"Heavy"'] then
  fail('texts are not offered: ' .. vim.inspect(offered))
end

-- The cures, one after the other.
while #vim.diagnostic.get(buffer) > 0 do
  local count = #vim.diagnostic.get(buffer)
  local at = vim.diagnostic.get(buffer)[1]
  local position = {line = at.lnum, character = at.col}
  local actions = vim.lsp.buf_request_sync(buffer, 'textDocument/codeAction', {
    textDocument = vim.lsp.util.make_text_document_params(buffer),
    range = {start = position, ['end'] = position},
    context = {diagnostics = {}},
  }, 20000)
  local _, answer = next(actions)
  if answer == nil or answer.result[1] == nil then
    fail('no cure for ' .. at.message)
  end
  vim.lsp.util.apply_workspace_edit(answer.result[1].edit, 'utf-16')
  wait_for('the findings to go', function() return #vim.diagnostic.get(buffer) < count end)
end
vim.cmd('write')
vim.cmd('quitall')
