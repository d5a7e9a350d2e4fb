#include "atlas/name_key.h"

#include <algorithm>

#include "foundation/text.h"

namespace atlas {
namespace {

struct Likeness {
  std::string_view plain, letters;
};

// Letters with marks by Unicode's decompositions (U+00C0 to U+024F and U+1E00 to U+1EFF), and those
// that the names of the atlas were made plain from.
constexpr Likeness kLikenesses[] = {
    {"a", "ÀÁÂÃÄÅàáâãäåĀāĂăĄąǍǎǞǟǠǡǺǻȀȁȂȃȦȧḀḁẠạẢảẤấẦầẨẩẪẫẬậẮắẰằẲẳẴẵẶặƏəǝ"},
    {"ae", "ÆæǼǽǢǣ"},
    {"b", "ḂḃḄḅḆḇ"},
    {"c", "ÇçĆćĈĉĊċČčḈḉ"},
    {"d", "ĎďḊḋḌḍḎḏḐḑḒḓÐðĐđ"},
    {"e", "ÈÉÊËèéêëĒēĔĕĖėĘęĚěȄȅȆȇȨȩḔḕḖḗḘḙḚḛḜḝẸẹẺẻẼẽẾếỀềỂểỄễỆệ"},
    {"f", "Ḟḟ"},
    {"g", "ĜĝĞğĠġĢģǦǧǴǵḠḡ"},
    {"h", "ĤĥȞȟḢḣḤḥḦḧḨḩḪḫẖĦħ"},
    {"i", "ÌÍÎÏìíîïĨĩĪīĬĭĮįİǏǐȈȉȊȋḬḭḮḯỈỉỊịı"},
    {"j", "Ĵĵǰ"},
    {"k", "ĶķǨǩḰḱḲḳḴḵ"},
    {"l", "ĹĺĻļĽľḶḷḸḹḺḻḼḽŁł"},
    {"m", "ḾḿṀṁṂṃ"},
    {"n", "ÑñŃńŅņŇňǸǹṄṅṆṇṈṉṊṋ"},
    {"o", "ÒÓÔÕÖòóôõöŌōŎŏŐőƠơǑǒǪǫǬǭȌȍȎȏȪȫȬȭȮȯȰȱṌṍṎṏṐṑṒṓỌọỎỏỐốỒồỔổỖỗỘộỚớỜờỞởỠỡỢợØøǾǿ"},
    {"oe", "Œœ"},
    {"p", "ṔṕṖṗ"},
    {"r", "ŔŕŖŗŘřȐȑȒȓṘṙṚṛṜṝṞṟ"},
    {"s", "ŚśŜŝŞşŠšſȘșṠṡṢṣṤṥṦṧṨṩẛ"},
    {"ss", "ßẞ"},
    {"t", "ŢţŤťȚțṪṫṬṭṮṯṰṱẗŦŧ"},
    {"th", "Þþ"},
    {"u", "ÙÚÛÜùúûüŨũŪūŬŭŮůŰűŲųƯưǓǔǕǖǗǘǙǚǛǜȔȕȖȗṲṳṴṵṶṷṸṹṺṻỤụỦủỨứỪừỬửỮữỰự"},
    {"v", "ṼṽṾṿ"},
    {"w", "ŴŵẀẁẂẃẄẅẆẇẈẉẘ"},
    {"x", "ẊẋẌẍ"},
    {"y", "ÝýÿŶŷŸȲȳẎẏẙỲỳỴỵỶỷỸỹ"},
    {"z", "ŹźŻżŽžẐẑẒẓẔẕ"},
};
constexpr Likeness kSpelled[] = {{"aa", "Åå"}, {"ae", "Ää"}, {"oe", "ÖöØø"}, {"ue", "Üü"}};
constexpr std::string_view kApostrophes = "'`´‘’ʻʼ";

bool IsMark(std::string_view character) {  // U+0300 to U+036F, which follow their letter
  return character >= "\u0300" && character <= "\u036F" && character.size() == 2;
}

bool Holds(std::string_view letters, std::string_view character) {
  return letters.find(character) != std::string_view::npos;
}

std::string_view PlainLetters(std::string_view character, Umlauts umlauts) {
  const auto holds = [&](const Likeness& row) { return Holds(row.letters, character); };
  if (umlauts == Umlauts::Spelled) {
    const auto row = std::ranges::find_if(kSpelled, holds);
    if (row != std::end(kSpelled)) return row->plain;
  }
  const auto row = std::ranges::find_if(kLikenesses, holds);
  return row == std::end(kLikenesses) ? character : row->plain;
}

bool IsLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

}  // namespace

std::string NameKey(std::string_view name, Umlauts umlauts) {
  std::string key;
  bool apart = false;  // signs were passed since the last letter
  const auto add = [&](std::string_view letters) {
    if (apart && !key.empty()) key += ' ';
    apart = false;
    key += letters;
  };
  for (const std::string_view character : foundation::Characters(name)) {
    if (Holds(kApostrophes, character) || IsMark(character)) continue;
    if (character.size() > 1) {
      add(PlainLetters(character, umlauts));
      continue;
    }
    const char c = character[0];
    const char small = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    if (IsLetterOrDigit(small)) {
      add({&small, 1});
    } else {
      apart = true;
    }
  }
  return key;
}

}  // namespace atlas
