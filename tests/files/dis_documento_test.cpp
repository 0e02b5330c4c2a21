#include "files/dis_documento.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "full_disk.h"
#include "model/tavolozza.h"
#include "test_program.h"

namespace trelvo {
namespace {

namespace fs = std::filesystem;

const std::string good_line = TestRecord("Linea", 0).p1(1, 2).p2(3, 4).byte;
const std::string no_tag("\x03\0\x01\0", 4);

struct LoadedProgram : TestProgram {
  explicit LoadedProgram(const std::string& bytes) {
    doc.Caption = folder / "prova.dis";
    write_bytes(doc.Caption, bytes);
  }
  int error() {
    return error_of([&] { leggifile(doc); });
  }
};

TEST(DisDocumento, EmptyDrawingKeepsViewAndSettings) {
  TestProgram written;
  const std::string name = written.folder / "vuoto.dis";
  written.doc.Caption = name;
  selzoom(written.doc, 1, 2, 5, 4);
  written.doc.WindowState = window_maximised;
  written.doc.imp.coloresfondo = {3, true};
  written.doc.imp.colorepuntatore = {6, false};
  written.doc.imp.statostep = spento;
  written.doc.imp.passostep = 0.25F;
  written.doc.imp.statogriglia = acceso;
  written.doc.imp.passogriglia = 2;
  salvafile(written.doc);
  EXPECT_EQ(written.desktop.MousePointer, pointer_default);
  EXPECT_EQ(fs::file_size(name), 2662U);

  LoadedProgram p(read_bytes(name));
  EXPECT_EQ(p.error(), 0);
  EXPECT_FLOAT_EQ(p.doc.surface.ScaleLeft, written.doc.surface.ScaleLeft);
  EXPECT_FLOAT_EQ(p.doc.surface.ScaleTop, written.doc.surface.ScaleTop);
  EXPECT_NEAR(p.doc.vista.rapscala, written.doc.vista.rapscala, 1e-3);
  EXPECT_EQ(p.doc.WindowState, window_maximised);
  EXPECT_EQ(p.doc.imp.coloresfondo.valore, 3);
  EXPECT_TRUE(p.doc.imp.coloresfondo.doppio);
  EXPECT_EQ(p.doc.imp.colorecontrasto.valore, 15);
  EXPECT_EQ(p.doc.imp.colorepuntatore.valore, 6);
  EXPECT_EQ(p.doc.imp.statostep, spento);
  EXPECT_EQ(p.doc.imp.passostep, 0.25F);
  EXPECT_EQ(p.doc.imp.statogriglia, acceso);
  EXPECT_EQ(p.doc.surface.BackColor, tavolozza(3));
  EXPECT_EQ(p.doc.cmd.statooggetti, 0);
  EXPECT_EQ(p.doc.cmd.livello, 2);
  EXPECT_EQ(p.doc.cmd.comando(), "");
  EXPECT_EQ(p.desktop.MousePointer, pointer_default);
}

TEST(DisDocumento, AidsAgreeWithTheFile) {
  for (const bool checked : {false, true}) {
    for (const bool on : {false, true}) {
      std::string header = test_header();
      for (const std::size_t slot : {1694, 2178}) put_text(header, slot, on ? dis_on : dis_off);
      put(header, 1936, 0.0F);
      LoadedProgram p(header);
      p.doc.aiutdis(4).Checked = p.doc.aiutdis(5).Checked = checked;
      EXPECT_EQ(p.error(), 0);
      EXPECT_EQ(p.doc.aiutdis(4).Checked, on);
      EXPECT_EQ(p.doc.aiutdis(5).Checked, on);
      EXPECT_EQ(p.doc.imp.step(), on);
      EXPECT_EQ(p.doc.imp.griglia(), on);
      EXPECT_EQ(p.doc.imp.passostep, on ? 1 : 0);
      EXPECT_EQ(p.bas.frmMain.Label8.ToolTipText.get(), on ? "[ON] : 1 " : "[ OFF ]");
      EXPECT_EQ(p.bas.frmMain.Label9.ToolTipText.get(), on ? "[ON] : 2 " : "[ OFF ]");
    }
  }
}

TEST(DisDocumento, FaultsAreToldAfterAllIsRead) {
  constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();
  const struct {
    const char* name;
    std::function<void(std::string&)> spoil;
    int error;
    int background;
    double left;  // of the view
  } cases[] = {
      {"good", [](std::string&) {}, 0, 7, 1},
      {"background off the palette", [](std::string& b) { put(b, 1212, std::int16_t{16}); }, error_bad_index, 15, 1},
      {"pointer off the palette", [](std::string& b) { put(b, 1454, std::int16_t{-1}); }, error_bad_index, 7, 1},
      {"no tag", [](std::string& b) { put_text(b, 1210, no_tag); }, error_type, 15, 1},
      {"number for ON", [](std::string& b) { put_text(b, 1694, no_tag); }, error_type, 7, 1},
      {"text beyond its slot", [](std::string& b) { put(b, 1696, std::int16_t{-1}); }, error_type, 7, 1},
      {"pitch", [](std::string& b) { put(b, 2420, nan_value); }, error_overflow, 7, 1},
      {"window state that is none", [](std::string& b) { put(b, 970, std::int16_t{7}); }, 0, 7, 1},
      {"no width", [](std::string& b) { put(b, 484, 0.0F); }, 0, 7, 0},
      {"negative height", [](std::string& b) { put(b, 726, -3.0F); }, 0, 7, 0},
      {"corner", [](std::string& b) { put(b, 0, nan_value); }, 0, 7, 0},
      {"width lost in the corner", [](std::string& b) { put(b, 484, 1e-30F); }, 0, 7, 0},
      {"coordinate", [](std::string& b) { put(b, 2662 + 242 + 40, static_cast<double>(nan_value)); }, error_overflow, 7,
       1},
  };
  for (const auto& c : cases) {
    std::string bytes = test_header() + good_line + good_line;
    put(bytes, 1212, std::int16_t{7});
    c.spoil(bytes);
    LoadedProgram p(bytes);
    EXPECT_EQ(p.error(), c.error) << c.name;
    EXPECT_EQ(p.doc.imp.coloresfondo.valore, c.background) << c.name;
    EXPECT_EQ(p.doc.surface.BackColor, tavolozza(c.background)) << c.name;
    EXPECT_NEAR(vista_viva(p.doc).sinistra, c.left, 1e-4) << c.name;
    EXPECT_EQ(p.doc.vista.xminvis, static_cast<float>(c.left)) << c.name;
    EXPECT_EQ(p.doc.WindowState, window_normal) << c.name;
    EXPECT_EQ(p.doc.dis.collLinee.numero(), std::string("coordinate") == c.name ? 1U : 2U) << c.name;
    EXPECT_EQ(p.doc.cmd.statooggetti, 1) << c.name;
    EXPECT_EQ(p.doc.cmd.livello, 2) << c.name;
    EXPECT_EQ(p.desktop.MousePointer, pointer_default) << c.name;
  }
}

TEST(DisDocumento, HeaderCutAnywhere) {
  const std::string bytes = test_header();
  for (std::size_t n = 0; n <= bytes.size(); n += n % 242 < 16 ? 1 : 242 - 16) {
    LoadedProgram p(bytes.substr(0, n));
    EXPECT_EQ(p.error(), 0) << n;
    EXPECT_EQ(p.doc.imp.coloresfondo.valore, n < 1213 ? 0 : 15) << n;
    EXPECT_EQ(p.doc.imp.step(), n >= 1700) << n;
    EXPECT_EQ(p.doc.imp.passogriglia, n < 2424 ? 0 : 2) << n;
  }
}

TEST(DisDocumento, RefusedFilesChangeNothing) {
  TestProgram p;
  const struct {
    std::string name;
    int error;
  } cases[] = {
      {p.folder / "manca.dis", error_file_not_found},
      {p.folder / "manca/a.dis", error_path_not_found},
      {p.folder.name(), error_path_access},
  };
  for (const auto& c : cases) {
    p.doc.Caption.set(c.name);
    EXPECT_EQ(error_of([&] { leggifile(p.doc); }), c.error);
    EXPECT_EQ(p.doc.cmd.livello, 1);
    EXPECT_EQ(p.doc.imp.statogriglia, acceso);
    EXPECT_EQ(p.desktop.MousePointer, pointer_default);
  }
}

TEST(DisDocumento, SettingsThatCannotBeWrittenAreToldLast) {
  LoadedProgram p(test_header() + good_line);
  p.bas.fileini = p.folder / "manca/Trelvo.ini";
  EXPECT_EQ(p.error(), error_path_not_found);
  EXPECT_EQ(p.doc.dis.collLinee.numero(), 1U);
  EXPECT_TRUE(p.doc.aiutdis(4).Checked);
  EXPECT_FALSE(p.doc.aiutdis(5).Checked);
}

TEST(DisDocumento, LeftOverCountLivesAsLongAsTheDocument) {
  LoadedProgram p(test_header() + good_line + TestRecord("Blocco", 77).byte);
  EXPECT_EQ(p.error(), 0);
  const auto count_of = [&](std::size_t record) {
    salvafile(p.doc);
    return static_cast<int>(read_bytes(p.doc.Caption).at(2662 + record * 242 + 240));
  };
  EXPECT_EQ(count_of(0), 77);
  p.doc.dis.collPolilinee.aggiungi({}).vertic(2);
  EXPECT_EQ(count_of(0), 77);
  EXPECT_EQ(count_of(0), 2);
  p.doc.dis.collPolilinee(1).stato = stato_cancellato;
  EXPECT_EQ(count_of(0), 2);
}

TEST(DisDocumento, ShorterFileReplacesALongerOne) {
  LoadedProgram p(test_header() + good_line + good_line + good_line);
  EXPECT_EQ(p.error(), 0);
  for (const std::size_t i : {1U, 3U}) p.doc.dis.collLinee(i).stato = stato_cancellato;
  salvafile(p.doc);
  EXPECT_EQ(fs::file_size(p.doc.Caption.get()), 12U * 242);
  EXPECT_FALSE(fs::exists(p.doc.Caption.get() + "~"));
}

// What the document never took from a file is not lost by saving over it.
TEST(DisDocumento, FileThatWasNotAllTakenStaysAside) {
  const std::string whole = test_header() + good_line;
  const std::string polyline = TestRecord("Polilinea", 7).p1(1, 2).byte;
  const std::string not_finite = TestRecord("Linea", 0).p1(std::numeric_limits<double>::infinity(), 2).byte;
  const auto replaced = [](const std::string& name) { write_bytes(name, "somebody else's"); };
  const auto left = [](const std::string& /*name*/) {};
  const struct {
    std::string bytes;
    std::function<void(const std::string&)> meanwhile;
    bool stays;
  } cases[] = {
      {whole, left, false},
      {test_header().substr(0, 2424), left, false},  // nothing behind the last value means anything
      {test_header().substr(0, 2423), left, true},
      {whole + good_line.substr(0, 241), left, true},
      {whole + polyline + good_line, left, true},
      {whole + TestRecord("Quota", 0).byte, left, true},
      {whole + not_finite, left, true},
      {"a letter", left, true},
      {whole, replaced, true},
      {"a letter", [](const std::string& name) { fs::remove(name); }, false},
  };
  for (const auto& c : cases) {
    LoadedProgram p(c.bytes);
    const std::string name = p.doc.Caption;
    p.error();
    c.meanwhile(name);
    const std::string before = fs::exists(name) ? read_bytes(name) : std::string();
    salvafile(p.doc);
    EXPECT_EQ(fs::exists(name + "~"), c.stays) << before;
    EXPECT_EQ(c.stays ? read_bytes(name + "~") : before, before);
    // What the document wrote itself is its own.
    salvafile(p.doc);
    EXPECT_EQ(fs::exists(name + "~"), c.stays);
    EXPECT_FALSE(fs::exists(name + "~~"));
  }
}

TEST(DisDocumento, FailedSaveKeepsTheFormerFile) {
  const std::string former = test_header() + good_line;
  LoadedProgram p(former);
  for (int i = 0; i < 5000; ++i) p.doc.dis.collLinee.aggiungi({});
  std::string text;
  {
    const FullDisk full(500000);
    EXPECT_EQ(error_of([&] { salvafile(p.doc); }, &text), error_disk_full);
  }
  EXPECT_EQ(read_bytes(p.doc.Caption.get() + "~"), former);
  EXPECT_FALSE(fs::exists(p.doc.Caption.get()));
  EXPECT_NE(text.find("prova.dis~"), std::string::npos) << text;
  EXPECT_EQ(p.desktop.MousePointer, pointer_default);
  salvafile(p.doc);
  EXPECT_EQ(fs::file_size(p.doc.Caption.get()), 5011U * 242);
}

}  // namespace
}  // namespace trelvo
