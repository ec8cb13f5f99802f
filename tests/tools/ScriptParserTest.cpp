#include "tools/ScriptParser.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(ScriptParser, SplitsAsAShellWithoutExpansion) {
  const std::pair<std::string, Words> table[] = {
      {"", {}},
      {" \t\r", {}},
      {"# all of it", {}},
      {"advance 1.5\r", {"advance", "1.5"}},
      {"\tfiles   # a comment", {"files"}},
      {"a#b '#c' \"#d\" #e", {"a#b", "#c", "#d"}},
      {"''", {""}},
      {"a '' \"\"", {"a", "", ""}},
      {"a'b c'd\"e f\"g", {"ab cde fg"}},
      {R"('\"$HOME')", {R"(\"$HOME)"}},
      {R"("\" \\ \n 'x'")", {R"(" \ \n 'x')"}},
      {R"(a\b \\)", {R"(a\b)", R"(\\)"}},
      {"*.json ~ $HOME `ls` a=b", {"*.json", "~", "$HOME", "`ls`", "a=b"}},
      {"@'my room.json'", {"@my room.json"}},
      {"sch\xC3\xB6n \xFF", {"sch\xC3\xB6n", "\xFF"}},
  };
  for (const auto &[line, words] : table) EXPECT_EQ(splitWords(line), words) << line;
}

TEST(ScriptParser, RefusesAnOpenQuote) {
  for (const char *line : {"'", "\"", "a 'b", R"("\")", R"("\)", "'\"", "\"'"})
    EXPECT_THROW(splitWords(line), ScriptError) << line;
}

TEST(ScriptParser, ReadsBackWhatItQuotes) {
  const Words words = {"plain", "",   "two words", "it's", R"(say "hi")",     R"(C:\x\)", R"(a\"b \\ c)",
                       "#hash", "a#", "tab\tvt\v", "'\"",  R"(both ' and ")", "\xC3\xA9"};
  EXPECT_EQ(splitWords(scriptLine(words)), words) << scriptLine(words);
}

}  // namespace
}  // namespace vantorel
