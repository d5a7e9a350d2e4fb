#include "foundation/ini_document.h"

#include <algorithm>

#include "foundation/ini_text.h"
#include "foundation/text.h"

namespace foundation {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kSpace = " \t\r\n\v\f";
constexpr std::string_view kGeneral = "general";
constexpr auto kNone = std::string_view::npos;

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(kSpace), text.size());
  return text.substr(begin, text.find_last_not_of(kSpace) + 1 - begin);
}

struct Line {
  std::size_t begin, end;
  std::size_t equals = kNone;  // the first outside quotation marks
  char lacks = '\0';  // what would close an open last line next: a quotation mark or line end
};

// The first line from here, without blanks and line ends before it.
Line LineAt(std::string_view text, std::size_t at) {
  at = std::min(text.find_first_not_of(" \t\r\n", at), text.size());
  Line line = {at, text.size()};
  if (text.substr(at).starts_with(';')) {
    line.end = std::min(text.find_first_of(kLineEnds, at), text.size());
    line.lacks = line.end < text.size() ? '\0' : '\n';
    return line;
  }
  bool inQuotes = false;
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '\\') {
      const std::string_view end = text.substr(++at, 2);
      if (end == "\r\n" || end == "\n\r") ++at;
    } else if (c == '"') {
      inQuotes = !inQuotes;
    } else if (!inQuotes) {
      if (c == '=' && line.equals == kNone) line.equals = at;
      if (c == '\r' || c == '\n' || c == ';') {
        line.end = at;
        return line;
      }
    }
  }
  const bool afterBackslash = at > text.size();
  line.lacks = inQuotes && !afterBackslash ? '"' : '\n';
  return line;
}

std::string KeyOf(std::string_view text, const Line& line) {
  return ReadIniKey(Trimmed(text.substr(line.begin, line.equals - line.begin)));
}

// The start of the next line, after a comment too; or the end of the text.
std::size_t NextLine(std::string_view text, std::size_t end) {
  end = text.find_first_of(kLineEnds, end);
  if (end == kNone) return text.size();
  return end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
}

std::string_view LineEndOf(std::string_view text) {
  const std::size_t end = text.find_first_of(kLineEnds);
  return end == kNone ? "\n" : text.substr(end, NextLine(text, end) - end);
}

// What precedes the keys of a section.
std::string Prefix(std::string_view section) {
  return section.empty() ? std::string() : std::string(section) + "/";
}

std::string PrefixOfHeader(std::string_view line) {
  const std::string_view name = Trimmed(line.substr(1, line.find(']') - 1));
  const std::string folded = FoldCase(name);
  if (folded == kGeneral) return {};
  const bool named = folded == "%" + std::string(kGeneral);
  return (named ? std::string(name.substr(1)) : ReadIniKey(name)) + "/";
}

std::string Header(std::string_view section) {
  if (section.empty()) return "[General]";
  if (FoldCase(section) == kGeneral) return "[%" + std::string(section) + "]";
  return "[" + SpellIniKey(section) + "]";
}

}  // namespace

std::optional<std::string> IniDocument::Value(std::string_view section,
                                              std::string_view key) const {
  const auto found = values_.find(Prefix(section) + std::string(key));
  if (found == values_.end()) return std::nullopt;
  const auto [begin, end] = found->second;
  return ReadIniValue(std::string_view(bytes_).substr(begin, end - begin));
}

void IniDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
  if (Value(section, key) == value) return;
  const std::string spelled = SpellIniValue(value);
  const auto found = values_.find(Prefix(section) + std::string(key));
  if (found != values_.end()) {
    Replace(found->second, spelled);
  } else {
    Insert(section, SpellIniKey(key) + "=" + spelled);
  }
  Parse();
}

// Keeps the blanks around the value.
void IniDocument::Replace(Range value, std::string_view spelled) {
  const std::string_view former =
      std::string_view(bytes_).substr(value.begin, value.end - value.begin);
  const std::size_t blanks = std::min(former.find_first_not_of(kBlanks), former.size());
  const std::size_t end = std::max(former.find_last_not_of(kBlanks) + 1, blanks);
  bytes_.replace(value.begin + blanks, end - blanks, spelled);
}

void IniDocument::Parse() {
  values_.clear();
  entryEnds_.clear();
  lastLineLacks_ = '\0';
  const std::string_view text = bytes_;
  std::string prefix;
  for (std::size_t at = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;;) {
    const Line line = LineAt(text, at);
    if (line.begin == line.end) break;
    at = line.end;
    lastLineLacks_ = line.lacks;
    if (text[line.begin] == '[') {
      prefix = PrefixOfHeader(text.substr(line.begin, line.end - line.begin));
    } else if (text[line.begin] != ';' && line.equals != kNone) {
      values_[prefix + KeyOf(text, line)] = {line.equals + 1, line.end};
    } else {
      continue;
    }
    entryEnds_[prefix] = NextLine(text, line.end);
  }
}

// Closes what is open at the end of the file.
void IniDocument::EndLastLine(std::string_view lineEnd) {
  while (lastLineLacks_ != '\0') {
    bytes_ += lastLineLacks_ == '"' ? "\"" : lineEnd;
    Parse();
  }
}

void IniDocument::Insert(std::string_view section, const std::string& entry) {
  const std::string lineEnd(LineEndOf(bytes_));
  std::string lines = entry + lineEnd;
  const auto found = entryEnds_.find(Prefix(section));
  std::size_t at = found == entryEnds_.end() ? bytes_.size() : found->second;
  if (found == entryEnds_.end()) {
    lines.insert(0, (bytes_.empty() ? "" : lineEnd) + Header(section) + lineEnd);
  }
  if (at == bytes_.size()) {
    EndLastLine(lineEnd);
    at = bytes_.size();
  }
  bytes_.insert(at, lines);
}

}  // namespace foundation
