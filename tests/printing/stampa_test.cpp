#include "printing/stampa.h"

#include <gtest/gtest.h>

#include <optional>

#include "model/tavolozza.h"
#include "support/programma.h"
#include "support/shapes.h"

namespace trelvo {
namespace {

// A printer of 600 dots an inch that tells its calls, and fails after so many figures.
class TestPrinter : public Printer {
 public:
  std::string description() const override { return "Test"; }
  double dots_per_inch() const override { return 600; }
  std::optional<Paper> sheet = Paper{};
  int figures_left = 1000;
  int finished = 0;
  int dropped = 0;

 protected:
  Paper paper() const override {
    if (!sheet) throw RuntimeError(error_printer);
    return *sheet;
  }
  std::unique_ptr<PrintJob> make_job() override { return std::make_unique<Job>(*this); }

 private:
  class Job : public PrintJob {
   public:
    explicit Job(TestPrinter& printer) : printer_(printer) {}
    ~Job() override { printer_.dropped += done_ ? 0 : 1; }
    void segment(const Pen& /*pen*/, double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/) override { figure(); }
    void finish() override {
      done_ = true;
      ++printer_.finished;
    }
    Size GetTextExtentPoint32A(const Font& /*font*/, const std::string& /*text*/) override { return {}; }

   protected:
    void paint_polyline(const Pen& /*pen*/, std::span<const Point> /*points*/) override { figure(); }
    void paint_polygon(const Pen& /*pen*/, const Brush& /*brush*/, std::span<const Point> /*points*/) override {
      figure();
    }
    void paint_ellipse(const Pen& /*pen*/, const Brush& /*brush*/, Point /*c1*/, Point /*c2*/) override { figure(); }
    void paint_arc(const Pen& /*pen*/, Point /*c1*/, Point /*c2*/, Point /*start*/, Point /*end*/) override {
      figure();
    }
    void paint_text(const Font& /*font*/, Color /*color*/, Point /*place*/, const std::string& /*text*/) override {
      figure();
    }

   private:
    void figure() {
      if (printer_.figures_left-- <= 0) throw RuntimeError(error_printer);
    }
    TestPrinter& printer_;
    bool done_ = false;
  };
};

class PrintingDesktop : public FakeDesktop {
 public:
  Printer& printer() override { return test_printer; }
  TestPrinter test_printer;
};

class Stampa : public testing::Test {
 protected:
  Stampa() {
    doc.surface.resize(15000, 9000);
    doc.vista.rapscala = 300;
    bas.ordine.push_back(&doc);
    prepara_stampa(bas);
    bas.Geststamp.Text1.Text = "1";
    printer.trace = [this](const std::string& call) { calls.push_back(call); };
  }

  template <class Object>
  Object& marked(Object o) {
    o.stampare = 1;
    return add(doc, std::move(o));
  }

  // One of each class, from its own corner of the sheet.
  void one_of_each() {
    marked(line(1, 1, 5, 2));
    marked(polyline({{1, 1}, {2, 4}, {3, 1}}));
    marked(text(10, 10, "testo", 8));
    marked(surface({{1, 1}, {5, 1}, {5, 4}}));
    marked(rectangle(2, 2, 6, 9));
    marked(arc({1, 1}, {3, 1}, {2, 2}));
    marked(circle(7, 7, 3));
  }

  PrintingDesktop desktop;
  trelvobas bas{desktop, "/nowhere"};
  distipo doc{bas, desktop.fonts(), 1};
  TestPrinter& printer = desktop.test_printer;
  std::vector<std::string> calls;
};

TEST_F(Stampa, WidthsOfPens) {
  bas.spessoristampa[1] = 0.05F;  // dark blue
  bas.spessoristampa[9] = 3;      // blue
  const struct {
    const char* scale;
    float thickness;
    int color;  // palette index, or -1 for one outside it
    const char* paper;
    const char* sheet;  // at one sheet unit a millimetre
  } table[] = {
      {"1", 0, 1, "1", "1"},       // the colour's: 0.36
      {"10", 2, 0, "14", "7"},     // 14.4; 7.14
      {"10", 0, 9, "216", "107"},  // 300 by 0.72; by 1 / 2.8
      {"1", 2, 9, "1", "1"},       // its own goes before the colour's
      {"10", 0, -1, "1", "1"},
      {"0", 50, 0, "1", "1"},
      {"-10", 50, 0, "1", "1"},
      {"1", 12.5F, 0, "9", "4"},
      {"1", 45000, 0, "32400", "16071"},
  };
  for (const auto& row : table) {
    SCOPED_TRACE(std::string(row.scale) + " " + std::to_string(row.thickness));
    doc.dis = disegno{};
    const Color color = row.color < 0 ? 123456 : tavolozza(row.color);
    Linea l = line(1, 1, 2, 2);
    l.speslinea = row.thickness;
    l.colorelinea = color;
    marked(l);
    polilinea p = polyline({{1, 1}, {2, 2}});
    p.spescont = row.thickness;
    p.colcont = color;
    marked(p);
    bas.Geststamp.Text1.Text = row.scale;

    calls.clear();
    EXPECT_TRUE(stampa(doc));
    ASSERT_EQ(calls.size(), 4U);
    EXPECT_NE(calls[1].find("pen=0," + std::string(row.paper) + ","), std::string::npos) << calls[1];
    EXPECT_NE(calls[2].find("DrawWidth=" + std::string(row.paper) + " "), std::string::npos) << calls[2];

    // A picture of the printer's whole sheet, a tenth of its numbers apart, has one unit a millimetre.
    bas.Geststamp.Picture1.Width = static_cast<float>(printer.Width() / 56.7);
    bas.Geststamp.Picture1.Height = static_cast<float>(printer.Height() / 56.7);
    calls.clear();
    bas.Geststamp.anteprima.trace = printer.trace;
    bas.Geststamp.anteprima.hDC().trace = printer.trace;
    anteprimastampa(doc);
    bas.Geststamp.anteprima.trace = nullptr;
    bas.Geststamp.anteprima.hDC().trace = nullptr;
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_NE(calls[1].find("DrawWidth=" + std::string(row.sheet) + " "), std::string::npos) << calls[1];
    EXPECT_NE(calls[2].find("pen=0," + std::string(row.sheet) + ","), std::string::npos) << calls[2];
  }
}

// Wherever the printer gives up, the sheet is dropped and nothing of the drawing or of the printer's pens is left
// changed.
TEST_F(Stampa, PrinterThatFailsHalfWay) {
  one_of_each();
  doc.dis.collLinee(1).speslinea = 9;
  const std::string before = told(doc.dis);
  for (int figures = 0; figures < 7; ++figures) {
    printer.figures_left = figures;
    EXPECT_THROW(stampa(doc), RuntimeError);
    EXPECT_EQ(told(doc.dis), before);
    EXPECT_EQ(printer.dropped, figures + 1);
    EXPECT_EQ(desktop.MousePointer.get(), pointer_default);
    EXPECT_EQ(printer.DrawWidth, 1) << figures;
  }
  EXPECT_EQ(printer.finished, 0);
  printer.figures_left = 7;
  EXPECT_TRUE(stampa(doc));
  EXPECT_EQ(printer.finished, 1);
  EXPECT_EQ(printer.dropped, 7);
  EXPECT_EQ(told(doc.dis), before);
}

TEST_F(Stampa, NumbersOutOfRange) {
  marked(line(1, 1, 2, 2)).speslinea = 1;
  const struct {
    const char* scale;
    const char* x;
    int error;
    int sheets;
  } table[] = {{"1e999", "0", 6, 0}, {"1", "-1e999", 6, 0}, {"1e6", "0", 6, 1}, {"1e300", "0", 6, 1}};
  for (const auto& row : table) {
    SCOPED_TRACE(row.scale);
    bas.Geststamp.Text1.Text = row.scale;
    bas.Geststamp.Text2.Text = row.x;
    printer.dropped = 0;
    try {
      stampa(doc);
      ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), row.error);
    }
    EXPECT_EQ(printer.dropped, row.sheets);
  }
  printer.sheet.reset();
  bas.Geststamp.Text1.Text = "1";
  bas.Geststamp.Text2.Text = "0";
  EXPECT_THROW(stampa(doc), RuntimeError);
}

// So many objects print behind a progress window; the event that asked for it hears what went wrong there.
TEST_F(Stampa, LongPrintThatFails) {
  for (int i = 0; i < 20001; ++i) marked(line(i, 1, i, 2));
  bas.barprog.Shown = [this] {
    if (bas.barprog.lavoro) bas.barprog.lavoro();
    bas.barprog.unload();
  };
  printer.trace = nullptr;
  printer.figures_left = 100;
  EXPECT_THROW(stampa(doc), RuntimeError);
  EXPECT_EQ(printer.dropped, 1);
  EXPECT_TRUE(desktop.errors.empty());
  printer.figures_left = 20001;
  EXPECT_TRUE(stampa(doc));
  EXPECT_EQ(printer.finished, 1);
}

}  // namespace
}  // namespace trelvo
