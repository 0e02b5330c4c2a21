#include "report/rtf_scrittura.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "report/descrizione.h"
#include "report/relazione_casuale.h"
#include "report/rtf_lettura.h"

namespace trelvo {
namespace {

TEST(ScriviRtf, isReadBackTheSame) {
  for (unsigned seed = 0; seed < 200; ++seed) {
    RandomReport random(seed);
    const relazione report = random.report(static_cast<int>(random.below(12)));
    const std::string file = scrivi_rtf(report);
    const relazione read = leggi_rtf(file);
    relazione expected = report;
    // A name cannot hold the character that ends it.
    expected.cambia_caratteri(0, report.lunghezza() + 1,
                              [](formatocarattere& f) { std::replace(f.nome.begin(), f.nome.end(), ';', ' '); });
    ASSERT_EQ(described(read), described(expected)) << seed << "\n" << file;
    ASSERT_TRUE(read == expected) << seed << "\n" << file;
    ASSERT_TRUE(std::all_of(file.begin(), file.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
  }
}

// The words that other programs know: what they read from our files stands and falls with them.
TEST(ScriviRtf, saysWhatOtherProgramsRead) {
  formatocarattere raised;
  raised.nome = "Courier New";
  raised.mezzipunti = 25;
  raised.grassetto = raised.corsivo = raised.sottolineato = raised.barrato = true;
  raised.colore = rgb(255, 128, 1);
  raised.scostamento = scostamento_apice;
  formatocarattere lowered;
  lowered.scostamento = scostamento_pedice;
  relazione report;
  report.aggiungi(U"a\u20AC\u4E2D\U0001F600\\", raised);
  report.aggiungi(U"b", lowered);
  formatoparagrafo format = con_punto({allineamento::centro, 567, 850, 0, false}, 360);
  report.formato_ultimo(format);
  EXPECT_EQ(scrivi_rtf(report),
            "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Courier New;}"
            "{\\f1\\fnil\\fcharset0 Arial;}}\n"
            "{\\colortbl ;\\red255\\green128\\blue1;}\n"
            "{\\*\\listtable{\\list\\listtemplateid1\\listsimple1{\\listlevel\\levelnfc23\\leveljc0\\levelstartat1"
            "\\levelfollow0{\\leveltext\\'01\\u8226 ?;}{\\levelnumbers;}\\fi-360\\li927}\\listid1}}\n"
            "{\\*\\listoverridetable{\\listoverride\\listid1\\listoverridecount0\\ls1}}\n"
            "{\\*\\generator Trelvo;}\\viewkind4\n"
            "{\\pntext\\'95\\tab}\\pard\\plain\\qc{\\*\\pn\\pnlvlblt\\pnindent360{\\pntxtb\\'95}}\\ilvl0\\ls1\\fi-"
            "360\\li927\\ri850"
            "{\\up5{\\*\\trelvoscost45}\\f0\\fs25\\b\\i\\ul\\strike\\cf1 a\\'80\\u20013?\\u-10179?\\u-8704?\\\\}"
            "{\\dn4\\f1\\fs20 b}{\\f1\\fs20 \\par}\n"
            "}\n");
}

}  // namespace
}  // namespace trelvo
