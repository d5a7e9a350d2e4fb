#include "foundation/legacy_hindi.h"

#include <utility>

#include "foundation/text.h"

namespace foundation {
namespace {

using Row = std::pair<std::string_view, std::string_view>;  // legacy code, Unicode

// Pairs that form one letter; matched first.
constexpr Row kPairs[] = {{"Hk", "भ"}, {"'k", "श"}, {"\"k", "ष"}, {"/k", "ध"}, {"?k", "घ"},
                          {"Fk", "थ"}, {"bZ", "ई"}, {"vk", "आ"},  {"ks", "ो"}, {"kS", "ौ"}};

constexpr Row kFullLetters[] = {
    {"c", "ब"}, {"d", "क"}, {"e", "म"}, {"g", "ह"}, {"i", "प"}, {"j", "र"}, {"l", "स"}, {"n", "द"},
    {"o", "व"}, {"p", "च"}, {"r", "त"}, {"t", "ज"}, {"u", "न"}, {"x", "ग"}, {"y", "ल"}, {";", "य"},
    {"Q", "फ"}, {"V", "ट"}, {"v", "अ"}, {"b", "इ"}, {"#", "रु"}, {"Ø", "क्र"}};

// Consonants with virama, which open a cluster.
constexpr Row kHalfLetters[] = {{"D", "क्"},  {"X", "ग्"}, {"?", "घ्"}, {"P", "च्"}, {"R", "त्"},
                                {"F", "थ्"},  {"/", "ध्"}, {"U", "न्"}, {"I", "प्"}, {"C", "ब्"},
                                {"H", "भ्"},  {"E", "म्"}, {"Y", "ल्"}, {"O", "व्"}, {"'", "श्"},
                                {"\"", "ष्"}, {"L", "स्"}};

constexpr Row kSigns[] = {{"k", "ा"}, {"h", "ी"}, {"q", "ु"}, {"w", "ू"},  {"`", "ृ"},
                          {"s", "े"},  {"S", "ै"},  {"a", "ं"}, {"¼", "("}, {"½", ")"}};

constexpr std::string_view kSubjoinedR = "z", kSubjoinedRText = "्र";
constexpr std::string_view kShortI = "f", kShortIText = "ि";
constexpr std::string_view kReph = "Z", kRephText = "र्";

template <std::size_t Count>
std::string_view Find(const Row (&rows)[Count], std::string_view key) {
  for (const auto& [code, text] : rows) {
    if (code == key) return text;
  }
  return {};
}

class Transcoder {
 public:
  std::string Run(std::string_view text) {
    while (!text.empty()) {
      if (const std::string_view pair = Find(kPairs, text.substr(0, 2)); !pair.empty()) {
        Take(text.substr(0, 2), pair);
        text.remove_prefix(2);
      } else {
        const std::string_view code = FirstCharacters(text, 1);
        TakeOne(code);
        text.remove_prefix(code.size());
      }
    }
    EndCluster();
    return std::move(unicode_);
  }

 private:
  void TakeOne(std::string_view code) {
    if (code == kReph) {
      PutReph();
    } else if (code == kShortI) {
      EndCluster();
      shortI_ = true;  // written before its cluster, pronounced after it
    } else if (code == kSubjoinedR) {
      unicode_ += kSubjoinedRText;
    } else if (const std::string_view half = Find(kHalfLetters, code); !half.empty()) {
      BeginLetter();
      unicode_ += half;
      open_ = true;
    } else if (const std::string_view full = Find(kFullLetters, code); !full.empty()) {
      Take(code, full);
    } else if (const std::string_view sign = Find(kSigns, code); !sign.empty()) {
      EndCluster();
      unicode_ += sign;
    } else {
      EndCluster();
      unicode_ += code;
      cluster_ = unicode_.size();
    }
  }

  // A full letter, or a pair.
  void Take(std::string_view code, std::string_view text) {
    if (code == "ks" || code == "kS") {
      EndCluster();
      unicode_ += text;
      return;
    }
    BeginLetter();
    unicode_ += text;
    open_ = false;
    complete_ = true;
  }

  // A letter after a complete one begins a new cluster.
  void BeginLetter() {
    if (!open_ && complete_) EndCluster();
    if (!open_) cluster_ = unicode_.size();
  }

  void EndCluster() {
    if (std::exchange(shortI_, false)) unicode_ += kShortIText;
    open_ = complete_ = false;
  }

  // Goes before the cluster that it follows in the legacy text, including its signs.
  void PutReph() {
    EndCluster();
    unicode_.insert(cluster_, kRephText);
  }

  std::string unicode_;
  std::size_t cluster_ = 0;  // where the current cluster begins
  bool open_ = false;        // after a half letter
  bool complete_ = false;    // has its full letter
  bool shortI_ = false;
};

}  // namespace

std::string FromLegacyHindi(std::string_view text) {
  return Transcoder().Run(text);
}

}  // namespace foundation
