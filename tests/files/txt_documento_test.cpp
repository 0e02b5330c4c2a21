#include "files/txt_documento.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "commands/comando.h"
#include "model/tavolozza.h"
#include "support/shapes.h"
#include "test_drawing.h"
#include "test_program.h"

namespace trelvo {
namespace {

const std::string head = "15\n5\nOFF\n0\nOFF\n0\n";
const std::string line_lines = "Linea\n255\n10\n2\n1,5\n-2\n30\n40,25\n";
const std::string text_head = "Testo\n1\n2\n";
const std::string text_tail = "\n10,5\n45\n255\n0\nArial\nciao\n";

struct Import : TestProgram {
  explicit Import(const std::string& bytes) {
    aggiungi_comandi(bas);
    prepara_barprog(bas);
    doc.Caption = folder / "prova.txt";
    bas.nomidocumenti = {"", doc.Caption, doc.Caption};
    write_bytes(doc.Caption, bytes);
  }
  int error() {
    return error_of([&] { leggitxt(doc); });
  }
};

template <class Class>
std::string told_of(const Class& o) {
  Telling telling;
  telling(o);
  return telling.words;
}

TEST(TxtDocumento, EveryClassFieldByField) {
  Import p(head + "Superficie\n5\n1\n2\n3,5\n4\n3\n0\n0\n3\n0\n3\n4\n" + "Polilinea\n1\n2\n3\n2\n1\n2\n3\n4\n99\n" +
           " Arco \n1\n2\n3\n1\n2\n3\n4\n5\n6\n" + "Cerchio\n5\n1\n2\n3\n4\n10\n20\n13\n24\n" +
           "Rettangolo\n5\n1\n2\n3\n4\n0\n0\n0\n5\n8\n5\n8\n0\n" + line_lines + "linea\n1\n1\n1\n1\n1\n1\n1\n" +
           "Testo\n10\n40\n1,0\n-1\n1.0x\n0\n 1\n25,5\n30\n128\n255\nCourier New\n" + std::string(140, '\xE8') + "\n");
  ASSERT_EQ(p.error(), 0);
  disegno& d = p.doc.dis;
  EXPECT_EQ(object_count(d), 7U);

  superficie s = surface({{0, 0}, {3, 0}, {3, 4}});
  s.campitura = 5;
  EXPECT_EQ(told_of(d.collSuperfici(1)), told_of(s));
  EXPECT_EQ(d.collSuperfici(1).colcont, 1);
  EXPECT_EQ(d.collSuperfici(1).colocampitura, 2);
  EXPECT_EQ(d.collSuperfici(1).spescont, 3.5F);
  EXPECT_EQ(d.collSuperfici(1).trattcont, 4);
  EXPECT_EQ(d.collSuperfici(1).perimet, 12);
  EXPECT_EQ(d.collSuperfici(1).supf, 6);

  EXPECT_EQ(told_of(d.collPolilinee(1)), told_of(polyline({{1, 2}, {3, 4}})));
  EXPECT_EQ(d.collPolilinee(1).spescont, 2);
  EXPECT_EQ(d.collPolilinee(1).trattcont, 3);

  Arco a = arc({1, 2}, {3, 4}, {5, 6});
  a.colcont = 1;
  a.spescont = 2;
  a.trattcont = 3;
  EXPECT_EQ(told_of(d.collArchi(1)), told_of(a));

  EXPECT_EQ(d.collCerchi(1).raggio, 5);
  EXPECT_EQ(d.collCerchi(1).Xpunto, 13);
  EXPECT_EQ(d.collCerchi(1).campitura, 5);
  EXPECT_EQ(d.collCerchi(1).colocampitura, 2);

  EXPECT_EQ(d.collRettangoli(1).vertic(), 4);
  EXPECT_EQ(d.collRettangoli(1).vertici.preleva(3), (vertice{8, 5}));
  EXPECT_EQ(d.collRettangoli(1).perimet, 26);
  EXPECT_EQ(d.collRettangoli(1).supf, 40);

  Linea l = line(1.5, -2, 30, 40.25);
  l.colorelinea = 255;
  l.speslinea = 10;
  l.TipoLinea = 2;
  EXPECT_EQ(told_of(d.collLinee(1)), told_of(l));

  const testo& t = d.collTesti(1);
  EXPECT_EQ(t.barrato_testo, vero);
  EXPECT_EQ(t.bold_testo, falso);
  EXPECT_EQ(t.inclinato(), vero);
  EXPECT_EQ(t.opaco_testo, falso);
  EXPECT_EQ(t.sottolineato_testo, vero);
  EXPECT_EQ(t.dimens_testo, 25.5F);
  EXPECT_EQ(t.ang_testo(), 30);
  EXPECT_EQ(t.colore_testo, 128);
  EXPECT_EQ(t.colore_opaco_testo, 255);
  EXPECT_EQ(t.nome_carattere(), "Courier New");
  EXPECT_EQ(text_length(t.stringa_testo), 100U);
  EXPECT_TRUE(t.stringa_testo.starts_with("è"));
}

TEST(TxtDocumento, RoundsToTheTypes) {
  const struct {
    const char* colour;
    const char* width;
    int error;
    int expected;
  } cases[] = {
      {"2,5", "0", 0, 2},        {"3,5", "0", 0, 4},      {"-2,5", "0", 0, -2},  {"2147483647,4", "0", 0, 2147483647},
      {"2147483648", "0", 6, 0}, {"1.000", "0", 0, 1000}, {"0", "3,5E38", 6, 0}, {"0", "1E999", 6, 0},
      {"rosso", "0", 13, 0},     {"", "0", 13, 0},
  };
  for (const auto& c : cases) {
    Import p(head + "Linea\n" + c.colour + "\n" + c.width + "\n0\n1\n1\n2\n2\n");
    EXPECT_EQ(p.error(), c.error) << c.colour;
    ASSERT_EQ(p.doc.dis.collLinee.numero(), c.error == 0 ? 1U : 0U);
    if (c.error == 0) {
      EXPECT_EQ(p.doc.dis.collLinee(1).colorelinea, c.expected) << c.colour;
    }
  }
}

TEST(TxtDocumento, TakesViewSettingsAndNoName) {
  Import p("3,6,\"ON\",0.25\nON\n2\n" + line_lines);
  p.desktop.regional_format = {",", "."};
  std::vector<float> shown;
  p.bas.barprog.ProgressBar1.Value.on_change([&] { shown.push_back(p.bas.barprog.ProgressBar1.Value); });
  ASSERT_EQ(p.error(), 0);
  EXPECT_EQ(p.doc.imp.coloresfondo.valore, 3);
  EXPECT_EQ(p.doc.imp.colorecontrasto.valore, 15);
  EXPECT_EQ(p.doc.imp.colorepuntatore.valore, 6);
  EXPECT_EQ(p.doc.imp.passostep, 0.25F);
  EXPECT_EQ(p.doc.imp.passogriglia, 2);
  EXPECT_EQ(p.doc.surface.BackColor, tavolozza(3));
  EXPECT_EQ(p.doc.Caption.get(), "Disegno _ 1");
  EXPECT_EQ(p.bas.nomidocumenti[1], "Disegno _ 1");
  EXPECT_EQ(p.bas.nomidocumenti[2], "Disegno _ 1");
  EXPECT_EQ(p.doc.WindowState, window_maximised);
  EXPECT_EQ(p.doc.cmd.statooggetti, 1);
  EXPECT_EQ(p.doc.cmd.modificato, 0);
  EXPECT_EQ(p.doc.cmd.comando(), "");
  EXPECT_EQ(p.doc.cmd.ultimocomando, "Zoom Tutto");
  EXPECT_EQ(p.doc.vista.ymaxdis, 40.25);
  EXPECT_EQ(p.desktop.MousePointer, pointer_default);
  // 50 bytes, of which 23 are in the lines behind the head.
  ASSERT_FALSE(shown.empty());
  EXPECT_EQ(shown.front(), 20);
  EXPECT_FLOAT_EQ(shown.back(), 20 + 100 * 23 / 50.0F);
}

TEST(TxtDocumento, HeadAloneLeavesTheView) {
  Import p(head);
  const statovista before = p.doc.vista;
  EXPECT_EQ(p.error(), 0);
  EXPECT_EQ(p.doc.vista.rapscala, before.rapscala);
  EXPECT_EQ(p.doc.vista.ymaxdis, before.ymaxdis);
  EXPECT_EQ(p.doc.cmd.statooggetti, 0);
  EXPECT_EQ(p.doc.Caption.get(), "Disegno _ 1");
}

TEST(TxtDocumento, BarStaysWithinItsRange) {
  Import p(head + std::string(100000, 'x') + "\n" + std::string(1000, '\n'));
  EXPECT_EQ(p.error(), 0);
  EXPECT_EQ(p.bas.barprog.ProgressBar1.Value, p.bas.barprog.ProgressBar1.Max);
}

TEST(TxtDocumento, AidsAgreeWithTheFile) {
  for (const bool checked : {false, true}) {
    for (const std::string state : {"ON", "OFF", "on"}) {
      Import p("15\n5\n" + state + "\n0\n" + state + "\n3\n");
      p.doc.aiutdis(4).Checked = p.doc.aiutdis(5).Checked = checked;
      EXPECT_EQ(p.error(), 0);
      const bool on = state == "ON";
      EXPECT_EQ(p.doc.aiutdis(4).Checked, on);
      EXPECT_EQ(p.doc.aiutdis(5).Checked, on);
      EXPECT_EQ(p.doc.imp.step(), on);
      EXPECT_EQ(p.doc.imp.griglia(), on);
      EXPECT_EQ(p.doc.imp.passostep, on ? 1 : 0);
      EXPECT_EQ(p.bas.frmMain.Label9.ToolTipText.get(), on ? "[ON] : 3 " : "[ OFF ]");
    }
  }
}

TEST(TxtDocumento, FailedImportLeavesTheDocumentAsItWas) {
  const struct {
    std::string bytes;
    int error;
  } cases[] = {
      {"", error_past_end},
      {"15\n5\nON\n1\nON\n", error_past_end},
      {"16\n5\nON\n1\nON\n1\n", error_bad_index},
      {"15\n-1\nON\n1\nON\n1\n", error_bad_index},
      {"15\n5\nON\n1e39\nON\n1\n", error_overflow},
      {"7\n6\nOFF\n0\nOFF\n0\n" + line_lines + "Linea\n1\n", error_past_end},
      {"7\n6\nOFF\n0\nOFF\n0\n" + line_lines + "Linea\nLinea\n", error_type},
      {head + "Polilinea\n0\n0\n0\n32768\n", error_overflow},
      {head + "Polilinea\n0\n0\n0\n-1\n", error_bad_index},
      {head + text_head + "0\n0\n0\n0\n0" + text_tail.substr(0, text_tail.size() - 5), error_past_end},
  };
  for (const auto& c : cases) {
    Import p(c.bytes);
    const std::string name = p.doc.Caption;
    const auto picture = p.doc.surface.Image().pixels;
    p.doc.aiutdis(4).Checked = p.doc.aiutdis(5).Checked = true;
    importa(p.doc);
    EXPECT_EQ(p.desktop.errors, std::vector<int>{c.error}) << c.bytes;
    EXPECT_FALSE(p.bas.barprog.loaded());
    EXPECT_EQ(object_count(p.doc.dis), 0U);
    EXPECT_EQ(p.doc.cmd.statooggetti, 0);
    EXPECT_EQ(p.doc.cmd.modificato, 0);
    EXPECT_EQ(p.doc.cmd.comando(), "");
    EXPECT_EQ(p.doc.imp.coloresfondo.valore, 15) << c.bytes;
    EXPECT_EQ(p.doc.surface.Image().pixels, picture) << c.bytes;
    EXPECT_TRUE(p.doc.aiutdis(4).Checked && p.doc.aiutdis(5).Checked && p.doc.imp.step() && p.doc.imp.griglia());
    EXPECT_EQ(p.doc.Caption.get(), "Disegno _ 1");
    for (const std::string& open : p.bas.nomidocumenti) EXPECT_NE(open, name);
    EXPECT_EQ(p.desktop.MousePointer, pointer_default);
    EXPECT_EQ(read_bytes(name), c.bytes);
  }
}

TEST(TxtDocumento, WhatFailsBehindTheReadingLosesNothing) {
  Import p(head + line_lines);
  p.bas.fileini = p.folder / "manca/Trelvo.ini";
  EXPECT_EQ(p.error(), error_path_not_found);
  EXPECT_EQ(p.doc.dis.collLinee.numero(), 1U);
  Import far(head + "Linea\n0\n0\n0\n-1E308\n0\n1E308\n1E308\n");
  far.error();
  EXPECT_EQ(far.doc.dis.collLinee.numero(), 1U);
  EXPECT_EQ(far.doc.cmd.comando(), "");
  EXPECT_EQ(far.doc.cmd.modificato, 0);
}

TEST(TxtDocumento, ProgressWindowRunsTheImportOnlyWhenAsked) {
  Import p(head + line_lines);
  p.desktop.show_modal(p.bas.barprog);
  EXPECT_EQ(object_count(p.doc.dis), 0U);
  importa(p.doc);
  EXPECT_EQ(object_count(p.doc.dis), 1U);
  p.doc.Caption = p.folder / "prova.txt";
  p.desktop.show_modal(p.bas.barprog);
  EXPECT_EQ(object_count(p.doc.dis), 1U);
  EXPECT_EQ(p.bas.barprog.ProgressBar1.Value, 0);
}

// Whatever stands in the file, it is read or refused with one of the errors that are told.
TEST(TxtDocumento, AnyBytes) {
  const std::set<int> allowed{0, error_overflow, error_bad_index, error_division, error_type, error_past_end};
  const std::string good = head + line_lines + "Polilinea\n1\n2\n3\n2\n1\n2\n3\n4\n" + text_head + "0\n0\n0\n0\n0" +
                           text_tail + "Cerchio\n7\n1\n2\n3\n4\n10\n20\n13\n24\n";
  std::mt19937 random(3);
  for (int i = 0; i < 400; ++i) {
    std::string bytes = good;
    for (std::size_t n = random() % 6; n > 0; --n) {
      const std::size_t at = random() % bytes.size();
      switch (random() % 4) {
        case 0:
          bytes[at] = static_cast<char>(random());
          break;
        case 1:
          bytes.erase(at, random() % 20);
          break;
        case 2:
          bytes.insert(at, good.substr(random() % good.size(), random() % 40));
          break;
        default:
          bytes.insert(at, 1, "9E-,\r\n\"\0"[random() % 8]);
      }
    }
    Import p(bytes);
    EXPECT_TRUE(allowed.contains(p.error())) << bytes;
    EXPECT_EQ(p.doc.Caption.get(), "Disegno _ 1");
  }
}

}  // namespace
}  // namespace trelvo
