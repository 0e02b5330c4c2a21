#include "windows/dialog_layouts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <map>

#include "windows/binding.h"
#include "windows/canvas.h"
#include "windows/desktop_qt.h"
#include "windows/dialog_parts.h"
#include "windows/form_dialog.h"
#include "windows/text_entry.h"

namespace trelvo {

namespace {

constexpr int twips_per_pixel = 15;

void lay_out_zoomp(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& z = dynamic_cast<zoompForm&>(form);
  auto* layout = new QVBoxLayout(&dialog);
  auto* row = new QHBoxLayout;
  auto* label = new QLabel;
  bind_label(desktop, label, z.Label1);
  auto* entry = make_entry(desktop, z.Text1, "Percentuale zoom", 10);
  label->setBuddy(entry);
  auto* spin = new QScrollBar(Qt::Vertical);
  bind_scroll(desktop, spin, z.VScroll1, "Cambia la percentuale");
  spin->setInvertedAppearance(true);  // up is more
  spin->setInvertedControls(false);
  spin->setFixedHeight(entry->sizeHint().height() * 2);
  row->addWidget(label);
  row->addWidget(entry, 1);
  row->addWidget(spin);
  layout->addLayout(row);
  layout->addLayout(button_row(desktop, dialog, z.Command1, z.Command2));
  entry->setFocus();
  entry->selectAll();
}

QGroupBox* switch_group(DesktopQt& desktop, Frame& frame, OptionButton& on, OptionButton& off, TextBox& pitch) {
  QGroupBox* group = make_group(desktop, frame);
  auto* row = new QHBoxLayout(group);
  row->addWidget(make_option(desktop, on));
  row->addWidget(make_option(desktop, off));
  row->addStretch(1);
  row->addWidget(make_entry(desktop, pitch, "Passo " + qt(frame.Caption), 10));
  return group;
}

QGroupBox* color_group(DesktopQt& desktop, Frame& frame, TextBox& index, Button& change) {
  QGroupBox* group = make_group(desktop, frame);
  auto* row = new QHBoxLayout(group);
  row->addWidget(make_entry(desktop, index, qt(frame.Caption), 6, FieldColors::to_show), 1);
  row->addWidget(make_button(desktop, change));
  return group;
}

void lay_out_impost(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& f = dynamic_cast<impostForm&>(form);
  auto* settings = new QVBoxLayout;
  settings->addWidget(switch_group(desktop, f.Frame1, f.Option1, f.Option2, f.Text3));
  settings->addWidget(switch_group(desktop, f.Frame2, f.Option3, f.Option4, f.Text4));
  settings->addWidget(color_group(desktop, f.Frame3, f.Text1, f.Command3));
  settings->addWidget(color_group(desktop, f.Frame4, f.Text2, f.Command4));
  settings->addWidget(make_button(desktop, f.Command5), 0, Qt::AlignLeft);
  settings->addStretch(1);

  auto* preview = new QVBoxLayout;
  auto* title = new QLabel;
  bind_label(desktop, title, f.Label1);
  auto* canvas = make_preview(desktop, f.anteprima, {&f.Line1, &f.Line2});
  canvas->setFixedSize(static_cast<int>(f.Picture1.Width / twips_per_pixel),
                       static_cast<int>(f.Picture1.Height / twips_per_pixel));
  canvas->moved = [&desktop, &f](float x, float y) { desktop.run([&] { f.Picture1.SurfaceMouseMove(x, y); }); };
  preview->addWidget(title);
  preview->addWidget(canvas);
  preview->addStretch(1);

  auto* columns = new QHBoxLayout;
  columns->addLayout(settings, 1);
  columns->addSpacing(8);
  columns->addLayout(preview);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addLayout(columns);
  layout->addLayout(button_row(desktop, dialog, f.Command1, f.Command2));
}

void lay_out_Selcol(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& s = dynamic_cast<SelcolForm&>(form);
  auto* layout = new QVBoxLayout(&dialog);
  auto* title = new QLabel;
  bind_label(desktop, title, s.Label1);
  layout->addWidget(title);
  auto* grid = new QGridLayout;
  constexpr int rows = numero_colori / 2;
  for (int i = 0; i < numero_colori; ++i) {
    auto* swatch = make_entry(desktop, s.Text1(i), qt(nome_colore(i)), 4, FieldColors::to_show);
    swatch->setFocusPolicy(Qt::NoFocus);
    const int column = i < rows ? 0 : 3;
    grid->addWidget(make_option(desktop, s.Option1(i)), i % rows, column);
    grid->addWidget(swatch, i % rows, column + 1);
  }
  grid->setColumnMinimumWidth(2, 16);
  layout->addLayout(grid);
  layout->addLayout(button_row(desktop, dialog, s.Command1, s.Command2));
}

// A long work's window: it goes by itself.
void lay_out_barprog(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& b = dynamic_cast<barprogForm&>(form);
  auto* layout = new QVBoxLayout(&dialog);
  auto* label = new QLabel;
  bind_label(desktop, label, b.Label1);
  auto* bar = new QProgressBar;
  bar->setMinimumWidth(bar->fontMetrics().averageCharWidth() * 50);
  bind_control(desktop, bar, b.ProgressBar1, "Avanzamento");
  follow(bar, b.ProgressBar1.Max, [bar, &b] { bar->setMaximum(static_cast<int>(b.ProgressBar1.Max)); });
  follow(bar, b.ProgressBar1.Value, [bar, &b] { bar->setValue(static_cast<int>(b.ProgressBar1.Value)); });
  layout->addWidget(label);
  layout->addWidget(bar);
}

}  // namespace

void lay_out_dialog(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  static const std::map<std::string, void (*)(DesktopQt&, FormDialog&, Form&)> layouts{
      {"zoomp", lay_out_zoomp},         {"impost", lay_out_impost},       {"Selcol", lay_out_Selcol},
      {"barprog", lay_out_barprog},     {"TipoLinea", lay_out_TipoLinea}, {"TipoSuperficie", lay_out_TipoSuperficie},
      {"Geststamp", lay_out_Geststamp}, {"Spesslin", lay_out_Spesslin},   {"Gesttesto", lay_out_Gesttesto},
      {"CoordVert", lay_out_CoordVert}, {"trova", lay_out_trova},         {"rientri", lay_out_rientri}};
  layouts.at(form.name)(desktop, dialog, form);
}

}  // namespace trelvo
