#include "windows/mnemonics.h"

#include <gtest/gtest.h>

namespace trelvo {
namespace {

TEST(Mnemonics, EachItemHasALetterOfItsOwn) {
  const struct {
    QStringList captions;
    QStringList marked;
  } rows[] = {
      {{"&File", "&Disegna", "&Filtri  F9", "F&inestra", "Help"},
       {"&File", "&Disegna", "Fi&ltri  F9", "F&inestra", "&Help"}},
      // A letter that a later caption has is its own.
      {{"Elimina", "-", "&Esci"}, {"E&limina", "-", "&Esci"}},
      {{"Zoom Area", "Zoom Tutto", "Zoom Prec.", "Zoom %"}, {"&Zoom Area", "Zoom &Tutto", "Zoom &Prec.", "Z&oom %"}},
      {{"à", "a", "A"}, {"à", "&a", "A"}},
      {{"&", "&&a"}, {"", "&a"}},
  };
  for (const auto& row : rows) EXPECT_EQ(with_mnemonics(row.captions), row.marked) << row.captions[0].toStdString();
}

}  // namespace
}  // namespace trelvo
