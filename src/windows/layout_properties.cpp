// Layouts of the property dialogs.
#include <QCheckBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/binding.h"
#include "windows/canvas.h"
#include "windows/desktop_qt.h"
#include "windows/dialog_layouts.h"
#include "windows/dialog_parts.h"
#include "windows/form_dialog.h"
#include "windows/swatch.h"
#include "windows/text_entry.h"

namespace trelvo {

namespace {

constexpr int number_width = 12;
constexpr int twips_per_pixel = 15;

QLabel* make_label(DesktopQt& desktop, Label& label) {
  auto* widget = new QLabel;
  bind_label(desktop, widget, label);
  return widget;
}

// Style, thickness and colour of an outline.
struct OutlineControls {
  Frame& frame;
  ControlArray<PictureBox>& swatches;
  Label& style;
  Label& thickness_title;
  TextBox& thickness;
  Label& thickness_value;
  Button& color_button;
  Label& color;
};

QGroupBox* outline_group(DesktopQt& desktop, const OutlineControls& c) {
  QGroupBox* group = make_group(desktop, c.frame);
  auto* layout = new QVBoxLayout(group);
  auto* grid = new QGridLayout;
  constexpr int columns = 3;
  for (const auto& [index, box] : c.swatches.items()) {
    grid->addWidget(new StyleSwatch(desktop, *box), index / columns, index % columns);
  }
  layout->addLayout(grid);
  layout->addWidget(make_label(desktop, c.style));
  auto* thickness = new QHBoxLayout;
  auto* title = make_label(desktop, c.thickness_title);
  auto* entry = make_entry(desktop, c.thickness, "Spessore", number_width);
  title->setBuddy(entry);
  thickness->addWidget(title);
  thickness->addWidget(entry);
  thickness->addWidget(make_label(desktop, c.thickness_value));
  thickness->addStretch(1);
  layout->addLayout(thickness);
  auto* color = new QHBoxLayout;
  color->addWidget(make_button(desktop, c.color_button));
  color->addWidget(new ColorChip(c.color, qt(c.color_button.Caption)));
  color->addStretch(1);
  layout->addLayout(color);
  return group;
}

QGroupBox* preview_group(DesktopQt& desktop, Frame& frame, Canvas* canvas, const PictureBox& box) {
  canvas->setFixedSize(static_cast<int>(box.Width / twips_per_pixel), static_cast<int>(box.Height / twips_per_pixel));
  QGroupBox* group = make_group(desktop, frame);
  auto* layout = new QVBoxLayout(group);
  layout->addWidget(canvas, 0, Qt::AlignCenter);
  return group;
}

QListView* vertex_list(DesktopQt& desktop, ListBox& list, const QString& name) {
  auto* view = make_list(desktop, list, name);
  view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));  // the rows are columns of figures
  view->setMinimumWidth(view->fontMetrics().averageCharWidth() * (number_width + 6));
  view->setMinimumHeight(view->fontMetrics().height() * 10);
  return view;
}

void add_vertex_lists(DesktopQt& desktop, QVBoxLayout* layout, elencoform& lists) {
  auto* columns = new QHBoxLayout;
  columns->addWidget(vertex_list(desktop, lists.List1(0), "Coordinate X"));
  columns->addWidget(vertex_list(desktop, lists.List1(1), "Coordinate Y"));
  layout->addLayout(columns, 1);
  auto* buttons = new QHBoxLayout;
  for (Button* button : {&lists.Command3, &lists.Command6, &lists.Command7}) {
    buttons->addWidget(make_button(desktop, *button));
  }
  buttons->addStretch(1);
  layout->addLayout(buttons);
}

void add_pair(DesktopQt& desktop, QGridLayout* grid, int row, int column, Label& label, TextBox& box) {
  auto* title = make_label(desktop, label);
  auto* entry = make_entry(desktop, box, qt(label.Caption), number_width);
  title->setBuddy(entry);
  title->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(title, row, column);
  grid->addWidget(entry, row, column + 1);
}

QGroupBox* points_group(DesktopQt& desktop, TipoLineaForm& f) {
  QGroupBox* group = make_group(desktop, f.Frame4);
  auto* grid = new QGridLayout(group);
  struct Point {
    Label& x;
    TextBox& x_box;
    Label& y;
    TextBox& y_box;
  };
  int row = 0;
  for (const Point& point : {Point{f.Label3, f.Text5, f.Label4, f.Text6}, Point{f.Label6, f.Text2, f.Label7, f.Text3},
                             Point{f.Label11, f.Text7, f.Label10, f.Text8}}) {
    // A line has two points only.
    if (!point.x_box.Visible) continue;
    add_pair(desktop, grid, row, 0, point.x, point.x_box);
    add_pair(desktop, grid, row++, 2, point.y, point.y_box);
  }
  grid->setRowStretch(row, 1);
  return group;
}

// What stands on the left is always there, what stands on the right depends on the object.
void put_columns(DesktopQt& desktop, FormDialog& dialog, std::initializer_list<QWidget*> left, QWidget* right,
                 Button& confirm, Button& leave) {
  auto* column = new QVBoxLayout;
  for (QWidget* widget : left) column->addWidget(widget);
  column->addStretch(1);
  auto* columns = new QHBoxLayout;
  columns->addLayout(column);
  if (right != nullptr) columns->addWidget(right, 1);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addLayout(columns, 1);
  layout->addLayout(button_row(desktop, dialog, confirm, leave));
}

QGroupBox* vertices_group(DesktopQt& desktop, TipoSuperficieForm& f) {
  QGroupBox* group = make_group(desktop, f.vertici.Frame5);
  auto* layout = new QVBoxLayout(group);
  if (f.Text4.Visible) {
    auto* grid = new QGridLayout;
    add_pair(desktop, grid, 0, 0, f.Label11, f.Text2);
    add_pair(desktop, grid, 1, 0, f.Label12, f.Text3);
    add_pair(desktop, grid, 2, 0, f.Label13, f.Text4);
    layout->addLayout(grid);
    layout->addWidget(make_button(desktop, f.vertici.Command3), 0, Qt::AlignLeft);
    layout->addStretch(1);
  } else {
    add_vertex_lists(desktop, layout, f.vertici);
  }
  for (Label* measure : {&f.Label3, &f.Label4, &f.Label2}) layout->addWidget(make_label(desktop, *measure));
  return group;
}

QGroupBox* fill_group(DesktopQt& desktop, TipoSuperficieForm& f) {
  QGroupBox* group = make_group(desktop, f.Frame2);
  auto* layout = new QVBoxLayout(group);
  auto* fills = make_list(desktop, f.List2, "Tipo Campitura");
  fills->setFixedHeight(fills->sizeHintForRow(0) * f.List2.ListCount + 2 * fills->frameWidth());
  layout->addWidget(fills);
  layout->addWidget(make_label(desktop, f.Label9));
  auto* color = new QHBoxLayout;
  color->addWidget(make_button(desktop, f.Command5));
  color->addWidget(new ColorChip(f.Label10, qt(f.Command5.Caption)));
  color->addStretch(1);
  layout->addLayout(color);
  return group;
}

}  // namespace

void lay_out_TipoLinea(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& f = dynamic_cast<TipoLineaForm&>(form);
  auto* outline =
      outline_group(desktop, {f.Frame3, f.picture1, f.Label8, f.Label9, f.Text1, f.Label1, f.Command4, f.Label2});
  Canvas* canvas = make_preview(desktop, f.anteprima, {&f.Line1});
  QWidget* right = nullptr;
  if (f.Frame4.Visible) right = points_group(desktop, f);
  if (f.vertici.Frame5.Visible) {
    auto* group = make_group(desktop, f.vertici.Frame5);
    add_vertex_lists(desktop, new QVBoxLayout(group), f.vertici);
    right = group;
  }
  put_columns(desktop, dialog, {outline, preview_group(desktop, f.Frame1, canvas, f.Picture4)}, right, f.Command1,
              f.Command2);
}

void lay_out_TipoSuperficie(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& f = dynamic_cast<TipoSuperficieForm&>(form);
  auto* outline =
      outline_group(desktop, {f.Frame3, f.picture1, f.Label8, f.Label5, f.Text1, f.Label7, f.Command4, f.Label6});
  Canvas* canvas = make_preview(desktop, f.anteprima, {}, {&f.Shape1});
  auto* middle = new QWidget;
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(fill_group(desktop, f));
  column->addWidget(preview_group(desktop, f.Frame1, canvas, f.Picture2));
  column->addStretch(1);
  auto* both = new QWidget;
  auto* row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(middle);
  auto* outline_column = new QVBoxLayout;
  outline_column->addWidget(outline);
  outline_column->addStretch(1);
  row->addLayout(outline_column);
  QWidget* right = f.vertici.Frame5.Visible ? vertices_group(desktop, f) : nullptr;
  put_columns(desktop, dialog, {both}, right, f.Command1, f.Command2);
}

void lay_out_Gesttesto(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& f = dynamic_cast<GesttestoForm&>(form);
  auto* layout = new QVBoxLayout(&dialog);
  auto* text = make_entry(desktop, f.Text1, "Testo", 50);
  layout->addWidget(text);

  auto* place = new QHBoxLayout;
  struct Pair {
    Label& label;
    TextBox& box;
  };
  for (const Pair& pair : {Pair{f.Label5, f.Text3}, Pair{f.Label6, f.Text4}, Pair{f.Label3, f.Text2}}) {
    auto* title = make_label(desktop, pair.label);
    auto* entry = make_entry(desktop, pair.box, qt(pair.label.Caption), number_width);
    title->setBuddy(entry);
    place->addWidget(title);
    place->addWidget(entry);
  }
  place->addStretch(1);
  layout->addLayout(place);

  auto* background = new QHBoxLayout;
  auto* check = new QCheckBox;
  bind_check(desktop, check, f.Check1, qt(f.Label7.Caption));
  auto* check_title = make_label(desktop, f.Label7);
  check_title->setBuddy(check);
  background->addWidget(check);
  background->addWidget(check_title);
  background->addWidget(make_button(desktop, f.Command4));
  background->addWidget(make_label(desktop, f.Label9));
  background->addWidget(new ColorChip(f.Label8, qt(f.Command4.Caption)));
  background->addStretch(1);
  layout->addLayout(background);

  auto* font = new QHBoxLayout;
  font->addWidget(make_button(desktop, f.Command3));
  font->addWidget(make_label(desktop, f.Label4), 1);
  layout->addLayout(font);

  QGroupBox* group = make_group(desktop, f.Frame1);
  auto* sample = new QLabel;
  bind_sample(desktop, sample, f.Label2);
  sample->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  sample->setIndent(sample->fontMetrics().averageCharWidth() * 2);
  sample->setFrameShape(QFrame::Box);
  sample->setMinimumHeight(sample->fontMetrics().height() * 4);
  // A large font is cut, and does not push the dialog off the screen.
  sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* around = new QVBoxLayout(group);
  around->addWidget(sample);
  group->setMinimumHeight(group->fontMetrics().height() * 8);
  layout->addWidget(group, 1);
  layout->addLayout(button_row(desktop, dialog, f.Command1, f.Command2));
}

void lay_out_CoordVert(DesktopQt& desktop, FormDialog& dialog, Form& form) {
  auto& f = dynamic_cast<CoordVertForm&>(form);
  auto* layout = new QVBoxLayout(&dialog);
  QGroupBox* point = make_group(desktop, f.Frame4);
  auto* grid = new QGridLayout(point);
  add_pair(desktop, grid, 0, 0, f.Label10, f.Text1);
  add_pair(desktop, grid, 1, 0, f.Label11, f.Text2);
  layout->addWidget(point);
  QGroupBox* radius = make_group(desktop, f.Frame1);
  auto* radius_grid = new QGridLayout(radius);
  add_pair(desktop, radius_grid, 0, 0, f.Label12, f.Text3);
  layout->addWidget(radius);
  layout->addLayout(button_row(desktop, dialog, f.Command1, f.Command2));
}

}  // namespace trelvo
