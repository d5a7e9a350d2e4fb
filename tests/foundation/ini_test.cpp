// INI files. Expected values come from Qt 6.4.2.

#include "foundation/ini_document.h"
#include "support/test.h"

namespace foundation {
namespace {

using namespace std::literals;

std::string With(std::string file, std::string_view section, std::string_view key,
                 std::string_view value) {
  IniDocument document(std::move(file));
  document.Set(section, key, value);
  return document.Bytes();
}

std::string In(std::string_view file, std::string_view section, std::string_view key) {
  return IniDocument(std::string(file)).Value(section, key).value_or("none");
}

std::string ValueOf(std::string_view spelled) {
  return In("[s]\nk=" + std::string(spelled) + "\nlast=1\n", "s", "k");
}

TEST(IniValues, AreWrittenAsQtWritesThem) {
  const auto written = [](std::string_view text) {
    const std::string file = With("", "s", "k", text);
    EXPECT_EQ(In(file + "last=1\n", "s", "k"), text);
    return file.substr(6, file.size() - 7);  // behind "[s]\nk="
  };
  ExpectRows(written, Row("", ""), Row("उज्जैन", "उज्जैन"), Row("തിരുവനന്തപുരം 😀", "തിരുവനന്തപുരം 😀"),
             Row("दिल्ली, \"New\"; =", R"("दिल्ली, \"New\"; =")"), Row("a;b", R"("a;b")"),
             Row("a=b", R"("a=b")"), Row(" a ", R"(" a ")"),
             Row("a%20b [x]# 'y'? (z) /", "a%20b [x]# 'y'? (z) /"), Row("C:\\x", R"(C:\\x)"),
             Row("\t", R"(\t)"), Row("1\r\n2\v\f\a\b", R"(1\r\n2\v\f\a\b)"),
             Row("\1f\x1f\x1f", R"(\x1\x66\x1f\x1f)"), Row("\x1b[0m\x7f", "\\x1b[0m\x7f"),
             Row("a\0bz"sv, R"(@String(a\0\x62z))"), Row("@home", "@@home"), Row("@@", "@@@"),
             Row("@Invalid()", "@@Invalid()"), Row("@String(x)", "@@String(x)"));
  const std::string longText(100'000, 'x');
  EXPECT_EQ(In(With("", "s", "k", longText), "s", "k"), longText);
}

TEST(IniValues, AreReadAsQtReadsThem) {
  ExpectRows(ValueOf,
             // lists, written by hand and by Qt
             Row("a, b", "a, b"), Row("a ,b,,", "a, b, , "), Row(R"("a" , "b")", "a, b"),
             Row(R"(a, b c, "d,e")", "a, b c, d,e"), Row("@@a, @@", "@a, @"),
             Row("1, @ByteArray(x), @Invalid()", "1, x, "), Row("@Invalid()", "none"),
             Row("@Invalid", "@Invalid"), Row("@String(a", "@String(a"),
             // blanks, quotation marks and comments
             Row("  a b \t", "a b"), Row(R"("  a"  b  )", "  ab  "), Row("a \"b", "a b\nlast=1\n"),
             Row("a ; b", "a"), Row(R"("a;" ; b)", "a;"), Row("a=b", "a=b"),
             // escapes
             Row(R"(\x41\x20ac\xd83d\xde00\101\a\"\'\?\\)", "A€😀A\a\"'?\\"), Row(R"(\q\z\x)", ""),
             Row(R"(\x12345)", "\u2345"), Row("a\\ ", "a"), Row("a \\t ", "a \t"),
             // continued on the next line
             Row("a\\\nb", "ab"), Row("a \\\r\n b", "a  b"), Row("a\\", "alast=1"),
             Row("\"a\n; b\"", "a\n; b"));
}

TEST(IniKeys, AreReadAsQtReadsThem) {
  const auto file =
      "\xEF\xBB\xBFtop=1\n;a \"\n[General]\n%25=2\nA.b_c-D=3\na%20b=4\n%E9=5\n%UD83D%UDE00=6\n"
      "[%General]\nk=7\n[x]\ny%20z=8\nb\\c=9\n[%U0915]\n%U0916=10\nगा=11\n%4%zz=12\n"
      "[ s ] junk\n k = 13 \nno value\nk=14\n[t\nk=15\n[general]\nlast=16";
  const auto value = [&](const char* section, const char* key) { return In(file, section, key); };
  ExpectRows(value, Row("", "top", "1"), Row("", "%", "2"), Row("", "A.b_c-D", "3"),
             Row("", "a.b_c-d", "none"), Row("", "a b", "4"), Row("", "é", "5"), Row("", "😀", "6"),
             Row("General", "k", "7"), Row("", "k", "none"), Row("x", "y z", "8"),
             Row("x", "b/c", "9"), Row("X", "b/c", "none"), Row("क", "ख", "10"),
             Row("क", "गा", "11"), Row("क", "%4%zz", "12"), Row("s", "k", "14"),
             Row("t", "k", "15"), Row("", "last", "16"));
  EXPECT_EQ(With("", "", "a b/%#", "1"), "[General]\na%20b%2F%25%23=1\n");
  EXPECT_EQ(With("", "General", "k", "1"), "[%General]\nk=1\n");
}

TEST(IniDocument, ChangesNoOtherByte) {
  const auto file = "; mine\r\n\r\n[s]\r\nB = 1  ; one\r\nodd\r\na= x , y\r\n\r\n; t\r\n[t]\r\na=3";
  ExpectRows(
      With,
      Row(file, "s", "B", "2, 3",
          "; mine\r\n\r\n[s]\r\nB = \"2, 3\"  ; one\r\nodd\r\na= x , y\r\n\r\n; t\r\n[t]\r\na=3"),
      Row(file, "s", "c", "4",
          "; mine\r\n\r\n[s]\r\nB = 1  ; one\r\nodd\r\na= x , y\r\nc=4\r\n\r\n; t\r\n[t]\r\na=3"),
      Row(file, "s", "a", "x, y", file),
      Row("[s]\nk=1\n[t]\n[s]\nk=2\n", "s", "k", "3", "[s]\nk=1\n[t]\n[s]\nk=3\n"),
      Row("[s]\n[t]", "s", "k", "1", "[s]\nk=1\n[t]"),
      Row("\xEF\xBB\xBF", "s", "k", "1", "\xEF\xBB\xBF\n[s]\nk=1\n"),
      Row("[s]\nk=", "s", "k", "1", "[s]\nk=1"), Row("[s]\nk=\" 1\n ", "s", "k", "2", "[s]\nk=2 "),
      // an unfinished line is completed first
      Row("a=1", "s", "k", "2", "a=1\n\n[s]\nk=2\n"),
      Row("[s]\na=\"1", "s", "k", "2", "[s]\na=\"1\"\nk=2\n"),
      Row("[s]\na=1\\", "s", "k", "2", "[s]\na=1\\\n\nk=2\n"),
      Row("[s]\na=\"1\\", "s", "k", "2", "[s]\na=\"1\\\n\"\nk=2\n"),
      Row("[s];", "s", "k", "2", "[s];\nk=2\n"));
}

}  // namespace
}  // namespace foundation
