#include "files/dxf_comando.h"

#include <gtest/gtest.h>

#include "full_disk.h"
#include "support/shapes.h"
#include "test_program.h"

namespace trelvo {
namespace {

const std::string empty_file = "0\nSECTION\n2\nENTITIES\n 0 \nENDSEC\n 0 \nEOF\n";

TEST(DxfComando, NamesAndQuestions) {
  const struct {
    const char* name;
    std::deque<std::string> chosen;
    std::deque<int> answers;
    const char* written;  // "" for none
    std::vector<std::string> messages;
  } cases[] = {
      {"new", {"a.dxf"}, {}, "a.dxf", {}},
      {"cancelled", {""}, {}, "", {}},
      {"over an old file", {"old"}, {answer_yes}, "old", {"File \"?/old\"  Esiste - Sovrapporre?"}},
      {"not over an old file", {"old"}, {answer_cancel}, "", {"File \"?/old\"  Esiste - Sovrapporre?"}},
      {"another name", {"old", "b"}, {answer_no}, "b", {"File \"?/old\"  Esiste - Sovrapporre?"}},
      {"gives up after all", {"old", ""}, {answer_no}, "", {"File \"?/old\"  Esiste - Sovrapporre?"}},
      {"no folder", {"no/a.dxf"}, {}, "", {"Errore nella creazione del file:?/no/a.dxf"}},
  };
  for (const auto& c : cases) {
    TestProgram p;
    p.desktop.answers = c.answers;
    for (const std::string& file : c.chosen) p.desktop.files.push_back(file.empty() ? file : p.folder / file);
    write_bytes(p.folder / "old", std::string(1000, 'o'));
    p.bas.frmMain.CommonDialog1.FileName = "before";
    crea_dxf(p.doc);
    std::vector<std::string> expected = c.messages;
    for (std::string& message : expected) message.replace(message.find('?'), 1, p.folder.name());
    EXPECT_EQ(p.desktop.messages, expected) << c.name;
    if (*c.written != '\0') {
      EXPECT_EQ(read_bytes(p.folder / c.written), empty_file) << c.name;
    }
    if (std::string(c.written) != "old") {
      EXPECT_EQ(read_bytes(p.folder / "old"), std::string(1000, 'o')) << c.name;
    }
    EXPECT_EQ(p.bas.frmMain.CommonDialog1.Filter, "File Acad DXF (*.DXF)|*.DXF|");
    EXPECT_EQ(p.desktop.MousePointer, pointer_default);
  }
}

TEST(DxfComando, HeightAsItWasLeft) {
  TestProgram p;
  add(p.doc, line(0, 70, 5, 80));
  p.doc.vista.ymaxdis = 90;
  p.desktop.files = {p.folder / "a"};
  crea_dxf(p.doc);
  EXPECT_NE(read_bytes(p.folder / "a").find("20\n20\n11\n5\n21\n10\n"), std::string::npos);
  EXPECT_EQ(p.doc.vista.ymaxdis, 90);
}

TEST(DxfComando, NumbersOutOfRangeAreToldAndTheRestIsWritten) {
  TestProgram p;
  add(p.doc, line(1, 2, 3, -1.7e308));
  add(p.doc, circle(0, 0, 1e200));
  add(p.doc, surface({{5, 5}}));
  p.doc.vista.ymaxdis = 1.7e308;
  const std::string name = p.folder / "a.dxf";
  p.desktop.files = {name};
  crea_dxf(p.doc);
  EXPECT_EQ(p.desktop.messages, std::vector<std::string>{"Errore nella creazione del file:" + name});
  EXPECT_TRUE(read_bytes(name).ends_with("SEQEND\n8\n0\n 0 \nENDSEC\n 0 \nEOF\n"));
}

TEST(DxfComando, FailedWritingIsToldOnceAndKeepsWhatThereIs) {
  TestProgram p;
  for (int i = 0; i < 20000; ++i) add(p.doc, line(1, 2, 3, 4));
  const std::string name = p.folder / "a.dxf";
  p.desktop.files = {name};
  {
    const FullDisk full(500000);
    crea_dxf(p.doc);
  }
  EXPECT_EQ(p.desktop.messages, std::vector<std::string>{"Errore nella creazione del file:" + name});
  EXPECT_EQ(std::filesystem::file_size(name), 500000U);
  EXPECT_EQ(p.desktop.MousePointer, pointer_default);
}

}  // namespace
}  // namespace trelvo
