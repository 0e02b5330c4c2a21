// Layouts of the dialogs of printing.
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/binding.h"
#include "windows/canvas.h"
#include "windows/desktop_qt.h"
#include "windows/dialog_layouts.h"
#include "windows/dialog_parts.h"
#include "windows/form_dialog.h"
#include "windows/text_entry.h"

namespace trelvo {

namespace {

constexpr double pixels_per_millimetre = 96 / 25.4;
constexpr int number_width = 10;

int pixels(float millimetres) { return static_cast<int>(std::lround(millimetres * pixels_per_millimetre)); }

// The sheet in the middle of its room, with its shadow behind it.
class Sheet : public QWidget {
 public:
  Sheet(DesktopQt& desktop, GeststampForm& form) : form_(form), canvas_(make_preview(desktop, form.anteprima)) {
    canvas_->setParent(this);
    canvas_->setAccessibleName("Anteprima di stampa");
    canvas_->setGeometry(pixels(form.Picture1.Left), pixels(form.Picture1.Top), form.anteprima.Image().width,
                         form.anteprima.Image().height);
    setFixedSize(pixels(form.ScaleWidth), canvas_->geometry().bottom() + 1 + pixels(3));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    const QPoint shift(pixels(form_.Picture2.Left) - pixels(form_.Picture1.Left),
                       pixels(form_.Picture2.Top) - pixels(form_.Picture1.Top));
    QPainter(this).fillRect(canvas_->geometry().translated(shift), palette().color(QPalette::Shadow));
  }

 private:
  GeststampForm& form_;
  Canvas* canvas_;
};

void add_box(DesktopQt& desktop, QHBoxLayout* row, Label& label, TextBox& box, const QString& name) {
  auto* title = new QLabel;
  bind_label(desktop, title, label);
  auto* entry = make_entry(desktop, box, name, number_width);
  title->setBuddy(entry);
  row->addWidget(title);
  row->addWidget(entry);
}

}  // namespace

void lay_out_Geststamp(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& f = dynamic_cast<GeststampForm&>(form);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(new Sheet(desktop, f), 0, Qt::AlignHCenter);

  auto* boxes = new QHBoxLayout;
  QGroupBox* scale = make_group(desktop, f.Frame1);
  auto* scale_row = new QHBoxLayout(scale);
  add_box(desktop, scale_row, f.Label1, f.Text1, "Scala di stampa");
  QGroupBox* origin = make_group(desktop, f.Frame2);
  auto* origin_row = new QHBoxLayout(origin);
  add_box(desktop, origin_row, f.Label2, f.Text2, "Origine X");
  add_box(desktop, origin_row, f.Label3, f.Text3, "Origine Y");
  boxes->addWidget(scale);
  boxes->addWidget(origin);
  boxes->addStretch(1);
  layout->addLayout(boxes);

  auto* printer = new QLabel;
  bind_label(desktop, printer, f.Label4);
  layout->addWidget(printer);
  auto* row = new QHBoxLayout;
  row->addWidget(make_button(desktop, f.Command4));
  row->addWidget(make_button(desktop, f.Command5));
  row->addStretch(1);
  row->addLayout(button_row(desktop, dialog, f.Command1, f.Command2));
  layout->addLayout(row);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void lay_out_Spesslin(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& f = dynamic_cast<SpesslinForm&>(form);
  auto* layout = new QVBoxLayout(&dialog);
  auto* grid = new QGridLayout;
  constexpr int rows = numero_colori / 2;
  for (int i = 0; i < numero_colori; ++i) {
    const int column = i < rows ? 0 : 4;
    auto* swatch = new QFrame;
    bind_control(desktop, swatch, f.Picture3(i), qt(nome_colore(i)));
    swatch->setAutoFillBackground(true);
    swatch->setFrameShape(QFrame::Box);
    swatch->setFixedSize(swatch->fontMetrics().height() * 2, swatch->fontMetrics().height());
    follow(swatch, f.Picture3(i).BackColor, [swatch, &f, i] {
      QPalette palette = swatch->palette();
      palette.setColor(QPalette::Window, color_of(f.Picture3(i).BackColor));
      swatch->setPalette(palette);
    });
    auto* name = new QLabel;
    bind_label(desktop, name, *f.nomi[static_cast<std::size_t>(i)]);
    auto* entry = make_entry(desktop, f.Text1(i), qt(nome_colore(i)), number_width);
    name->setBuddy(entry);
    grid->addWidget(swatch, i % rows + 1, column);
    grid->addWidget(name, i % rows + 1, column + 1);
    grid->addWidget(entry, i % rows + 1, column + 2);
  }
  auto* color_title = new QLabel;
  bind_label(desktop, color_title, f.Label17);
  auto* width_title = new QLabel;
  bind_label(desktop, width_title, f.Label18);
  grid->addWidget(color_title, 0, 1);
  grid->addWidget(width_title, 0, 2);
  grid->setColumnMinimumWidth(3, 16);
  layout->addLayout(grid);
  layout->addLayout(button_row(desktop, dialog, f.Command1, f.Command2));
}

}  // namespace trelvo
