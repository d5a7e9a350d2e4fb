// A key in the first line and arbitrary bytes after it as a language file: returns a phrase from
// the file, or the key.

#include "foundation/phrases.h"
#include "fuzz/fuzz.h"
#include "support/app_folder.h"

void fuzz::Run(const std::string& bytes) {
  static const support::AppFolderScope folder;
  std::string_view file = bytes;
  const std::string_view key = foundation::TakeLine(file);
  folder.Write("Language/ehindi.txt", file);
  const std::string phrase = foundation::LanguagePhrase(key, 1);
  fuzz::Require(phrase == key || file.find(phrase) != std::string_view::npos);
}
