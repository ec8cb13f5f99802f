#include "ScriptParser.h"

namespace vantorel {
namespace {

constexpr std::string_view kBlanks = " \t\r\v\f";

bool isBlank(char c) { return kBlanks.find(c) != std::string_view::npos; }

class Splitter {
 public:
  explicit Splitter(std::string_view line) : rest_(line) {}

  Words words() {
    Words words;
    while (skipBlanks()) words.push_back(word());
    return words;
  }

 private:
  /// Whether a word follows.
  bool skipBlanks() {
    while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
    return !rest_.empty() && rest_.front() != '#';
  }

  std::string word() {
    std::string word;
    while (!rest_.empty() && !isBlank(rest_.front())) {
      const char c = take();
      if (c == '\'' || c == '"') {
        appendQuoted(word, c);
      } else {
        word += c;
      }
    }
    return word;
  }

  void appendQuoted(std::string &word, char quote) {
    while (!rest_.empty()) {
      const char c = take();
      if (c == quote) return;
      const bool escapes =
          quote == '"' && c == '\\' && !rest_.empty() && (rest_[0] == '"' || rest_[0] == '\\');
      word += escapes ? take() : c;
    }
    throw ScriptError(std::string("a quote is not closed: expected another ") + quote);
  }

  char take() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  std::string_view rest_;
};

bool isPlain(std::string_view word) {
  return !word.empty() && word.find_first_of(" \t\r\v\f'\"#") == std::string_view::npos;
}

}  // namespace

Words splitWords(std::string_view line) { return Splitter(line).words(); }

std::string quotedWord(std::string_view word) {
  if (isPlain(word)) return std::string(word);
  std::string quoted = "\"";
  for (char c : word) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

std::string scriptLine(const Words &words) {
  std::string line;
  for (const std::string &word : words) {
    if (!line.empty()) line += ' ';
    line += quotedWord(word);
  }
  return line;
}

}  // namespace vantorel
