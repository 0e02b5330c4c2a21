#include "report/rtf_lettura.h"

#include <gtest/gtest.h>

#include "report/caricamento.h"
#include "report/descrizione.h"

namespace trelvo {
namespace {

// What a file without tables and formats reads as: fonts that are not explained, twelve points.
std::string body(const std::string& rtf) {
  std::string text = described(leggi_rtf("{\\rtf1 " + rtf + "}"));
  text.pop_back();
  const std::string plain = "{Arial 12}";
  for (std::size_t at = text.find(plain); at != std::string::npos; at = text.find(plain)) text.erase(at, plain.size());
  return text;
}

struct Case {
  const char* rtf;
  const char* read;
};

void expect_bodies(const std::vector<Case>& cases) {
  for (const Case& c : cases) EXPECT_EQ(body(c.rtf), c.read) << c.rtf;
}

TEST(LeggiRtf, text) {
  expect_bodies({
      {"abc", "abc"},
      {"a\\par b", "a\nb"},
      {"a\\par b\\par", "a\nb"},
      {"a\\par\\par", "a\n"},
      {"", ""},
      {"\\par", ""},
      {"a\r\nb\nc", "abc"},
      {"a\\\nb\\\r\nc", "a\nb\nc"},
      {"a\\line b\\lbr0 c", "a|b|c"},
      {"a\\tab b\tc", "a\tb\tc"},
      {"\\\\\\{\\}", "\\{}"},
      {"\\'e0\\'80\\'93x", "à€“x"},
      {"\xE0\x80", "à€"},
      {"\\'7", "7"},
      {"a\\'7fb\x7F", "a\uFFFDb\uFFFD"},
      {"\\'zz", "zz"},
      {"a\\~b\\_c\\-d", "a\u00A0b\u2011c\u00ADd"},
      {"\\lquote a\\rquote\\ldblquote b\\rdblquote\\emdash\\endash\\bullet", "‘a’“b”—–•"},
      {"\\unknownword text \\anotherword-12", "text "},
      {"\\page a\\sect b", "\na\nb"},
  });
}

TEST(LeggiRtf, unicode) {
  expect_bodies({
      {"\\u8364?x", "€x"},
      {"\\u8364\\'80x", "€x"},
      {"\\u-10179?\\u-8704?x", "😀x"},
      {"\\u-10179?x", "x"},
      {"\\u-8704?x", "\uFFFDx"},
      {"\\uc0\\u8364 x", "€x"},
      {"\\uc2\\u8364abx", "€x"},
      {"\\uc2\\u8364 a\\'80x", "€x"},
      {"\\uc3\\u8364 \\b0\\bullet{x}", "€x"},
      {"\\uc2{\\uc1\\u8364?a}\\u8364??b", "€a€b"},
      {"\\u233", "é"},
      {"\\u0?a", "\uFFFDa"},
  });
}

TEST(LeggiRtf, groups) {
  expect_bodies({
      {"a{\\b b}c", "a{Arial 12 b}bc"},
      {"a{\\*\\unknown x{y}z}b", "ab"},
      {"a{\\unknown b}c", "abc"},
      {"a{\\stylesheet{\\s1 Heading;}}{\\info{\\title t}{\\author u}}b", "ab"},
      {"a{\\pict\\pngblip 89504e47}b", "ab"},
      {"a{\\pict\\bin4 }\\par}b", "ab"},
      {"a\\bin2147483647 b", "a"},
      {"a{\\header h\\par}{\\footerl f}b", "ab"},
      {"a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}b", "alinkb"},
      {"a{\\field{\\*\\fldinst{HYPERLINK}}{\\*\\fldrslt{link}}}b", "alinkb"},
      {"a{\\field{\\fldinst PAGE}{\\fldrslt 1}}b", "a1b"},
      {"a{\\footnote\\pard\\plain note}b", "a[note]b"},
      {"a{\\*\\footnote note}b", "a[note]b"},
      {"a{\\shp{\\*\\shpinst\\shpleft0{\\sp{\\sn x}{\\sv y}}{\\shptxt box\\par two\\par}}{\\shprslt no}}b",
       "a[box|two]b"},
      {"a{\\footnote}b", "ab"},
      {"a{\\object{\\*\\objdata 0102}{\\result r}}b", "arb"},
      {"a{\\*\\bkmkstart m}b{\\*\\bkmkend m}", "ab"},
      {"a}b", "a"},
      {"a}}}{b", "a"},
  });
}

TEST(LeggiRtf, characters) {
  expect_bodies({
      {"\\b a\\i b\\b0 c\\plain d", "{Arial 12 b}a{Arial 12 bi}b{Arial 12 i}cd"},
      {"\\ul a\\ulnone b\\uldb c\\ul0 d\\ulwave e", "{Arial 12 u}ab{Arial 12 u}cd{Arial 12 u}e"},
      {"\\strike a\\strike0 b\\striked1 c", "{Arial 12 s}ab{Arial 12 s}c"},
      {"\\fs25 a\\fs0 b\\fs1 c", "{Arial 12.5}ab{Arial 1}c"},
      {"\\up5 a\\dn4 b\\up0 c\\up d", "{Arial 12 +50}a{Arial 12 -40}bc{Arial 12 +60}d"},
      {"\\super a\\sub b\\nosupersub c", "{Arial 12 +45}a{Arial 12 -40}bc"},
      {"{\\up5{\\*\\trelvoscost45}a}b", "{Arial 12 +45}ab"},
      {"\\cf3 a", "a"},
      {"\\fs99999999999 a", "{Arial 2160}a"},
  });
}

TEST(LeggiRtf, paragraphs) {
  expect_bodies({
      {"\\qc a\\par b\\par\\pard c", "[c]a\n[c]b\nc"},
      {"\\qr a\\par\\qj b\\par\\ql c", "[r]a\n[j]b\nc"},
      {"\\li567\\fi-283\\ri850 a", "[l567 f-283 r850]a"},
      {"\\pard\\qc a}", "[c]a"},
      {"{\\qc a\\par}b", "[c]a\nb"},
  });
}

TEST(LeggiRtf, lists) {
  expect_bodies({
      {"\\pard{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnindent360{\\pntxtb\\'b7}}\\fi-360\\li360 a\\par "
       "{\\pntext\\'b7\\tab}b\\par\\pard c",
       "[l360 f-360 *]a\n[l360 f-360 *]b\nc"},
      {"{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec{\\pntxta .}}a\\par", "1.\ta"},
      {"{\\listtext\\pard\\plain \\u8226\\'95\\tab}\\ls1 a", "[*]a"},
      {"{\\listtext o\\tab}a", "[*]a"},
      {"{\\listtext 1.\\tab}\\ls1 a", "1.\ta"},
      {"{\\listtext a)\\tab}b", "a)\tb"},
      // A sign that is left open around its paragraph.
      {"{\\listtext\\pard\\fi-360\\li360{\\tab }{\\b a}{\\par}\n}b", "[l360 f-360 *]{Arial 12 b}a\nb"},
  });
  const std::string tables =
      "{\\*\\listtable{\\list{\\listlevel\\levelnfc23{\\leveltext\\'01\\u8226 ?;}}{\\listlevel\\levelnfc0}\\listid7}"
      "{\\list{\\listlevel\\levelnfc0}\\listid8}}"
      "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}{\\listoverride\\listid8\\ls2}}";
  const Case cases[] = {
      {"\\ls1 a", "[*]a"},      {"\\ls1\\ilvl1{\\listtext -\\tab}a", "-\ta"}, {"{\\listtext -\\tab}\\ls2 a", "-\ta"},
      {"\\ls1\\ilvl99 a", "a"}, {"\\ls3{\\listtext -\\tab}a", "[*]a"},        {"\\ls1 a\\par\\pard b", "[*]a\nb"},
  };
  for (const Case& c : cases) EXPECT_EQ(body(tables + c.rtf), c.read) << c.rtf;
}

TEST(LeggiRtf, tablesGiveALineARow) {
  expect_bodies({
      {"\\trowd\\cellx1\\intbl a\\cell b\\cell\\row c\\cell d\\cell\\row\\pard e", "a\tb\nc\td\ne"},
      {"a\\nestcell b\\nestcell{\\*\\nesttableprops\\nestrow}{\\nonesttables\\par}c\\cell\\row", "a\tb\nc"},
      {"\\cell\\cell\\row", "\t"},
  });
}

TEST(LeggiRtf, fontsAndColours) {
  const struct {
    const char* rtf;
    const char* read;
  } cases[] = {
      {"{\\rtf1\\deff1{\\fonttbl{\\f0\\fswiss Helvetica;}{\\f1 Times New Roman{\\*\\falt Times};}}a\\f0 b\\plain c}",
       "{Times New Roman 12}a{Helvetica 12}b{Times New Roman 12}c\n"},
      {"{\\rtf1{\\fonttbl\\f0\\fswiss Helvetica;\\f1 Courier;}\\f1 a}", "{Courier 12}a\n"},
      {"{\\rtf1{\\fonttbl{\\f0 Citt\\'e0\\u8364?;}}a}", "{Città€ 12}a\n"},
      {"{\\rtf1{\\fonttbl{\\f0;}}a}", "{Arial 12}a\n"},
      {"{\\rtf1{\\colortbl;\\red255\\green1\\blue0;\\red999\\blue2;}\\cf1 a\\cf2 b\\cf0 c}",
       "{Arial 12 511}a{Arial 12 131327}b{Arial 12}c\n"},
      {"{\\rtf1{\\colortbl\\red0\\green0\\blue9;}a\\cf1 b}", "{Arial 12 589824}a{Arial 12}b\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(described(leggi_rtf(c.rtf)), c.read) << c.rtf;
}

TEST(LeggiRtf, groupsBeyondAllDepthKeepTheirText) {
  const std::string deep(200000, '{');
  EXPECT_EQ(body(deep + "a" + std::string(200000, '}') + "b"), "ab");
}

TEST(LeggiRelazione, isToldByTheBytes) {
  const struct {
    std::string bytes;
    const char* read;
  } cases[] = {
      {"{\\rtf1 a}", "{Arial 12}a\n"},
      {"\xEF\xBB\xBF \r\n{\\rtf1 a}", "{Arial 12}a\n"},
      {"{\\rt a}", "{Arial 10}{\\rt a}\n"},
      {"a\r\nb\xC3\xA0", "{Arial 10}a\n{Arial 10}bà\n"},
      {"\xEF\xBB\xBF\xC3\xA0", "{Arial 10}à\n"},
      {"perch\xE9 \x80", "{Arial 10}perché €\n"},
      {"", "\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(described(leggi_relazione(c.bytes)), c.read) << c.bytes;
}

}  // namespace
}  // namespace trelvo
