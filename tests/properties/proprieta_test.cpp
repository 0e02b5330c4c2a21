#include "properties/proprieta.h"

#include <gtest/gtest.h>

#include "commands/comando.h"
#include "properties/contorno.h"
#include "properties/elenco_vertici.h"
#include "properties/gesttesto.h"
#include "properties/tipolinea.h"
#include "properties/tiposuperficie.h"
#include "support/programma.h"

namespace trelvo {

namespace {

struct Proprieta : testing::Test, LoneDocument {
  Proprieta() {
    aggiungi_comandi(bas);
    prepara_proprieta(bas);
    bas.ordine = {&doc};
  }
  template <class Oggetto>
  Oggetto& scegli(Oggetto oggetto) {
    oggetto.stato = stato_selezionato;
    return collezione_di<Oggetto>(doc.dis).aggiungi(std::move(oggetto));
  }
};

TEST(Spessore, ShownAsATenthWithALeadingZero) {
  const std::pair<float, const char*> table[] = {{0.F, "0"},    {5.F, "0.5"},    {10.F, "1"},    {3.3F, "0.33"},
                                                 {-5.F, "-.5"}, {12.5F, "1.25"}, {1e9F, "1E+08"}};
  for (const auto& [stored, shown] : table) EXPECT_EQ(spessore_mostrato(stored), shown) << stored;
  EXPECT_EQ(spessore_mostrato(std::int32_t{7}), "0.7");
}

TEST(Tratto, EveryStoredStyleComesBack) {
  Form form("form");
  Label label(form, "Label8");
  for (const std::int32_t style : {0, 1, 4, 5, 77, -7, INT32_MAX, INT32_MIN}) {
    label.Caption = std::to_string(indice_di_tratto(style));
    EXPECT_EQ(tratto_scelto(label), style);
  }
  label.Caption = vari;
  EXPECT_EQ(tratto_scelto(label), std::nullopt);
}

// A value that has no place in one attribute keeps the others from being set.
TEST_F(Proprieta, AllAttributesOrNone) {
  Linea linea;
  linea.colorelinea = 7;
  Linea& o = scegli(linea);
  const char* const bad[] = {"1e40", "1e999", "-1e39"};
  int shown = 0;
  desktop.modal = [&](Form& form) {
    ++shown;
    ASSERT_EQ(&form, &bas.TipoLinea);
    TipoLineaForm& f = bas.TipoLinea;
    for (const char* width : bad) {
      f.Text1.Text = width;
      EXPECT_THROW(f.Command1.Click(), RuntimeError) << width;
      EXPECT_TRUE(form.loaded());
    }
    f.Text1.Text = "0.5";
    f.picture1(2).Click();
    f.Text5.Text = "1,5";
    f.Text8.Text = "1e400";
    EXPECT_THROW(f.Command1.Click(), RuntimeError);
    EXPECT_EQ(std::tie(o.colorelinea, o.speslinea, o.TipoLinea, o.Xi), std::tuple(7, 0.F, 0, 0.));
    f.Text8.Text = "2";
    f.Command1.Click();
    EXPECT_FALSE(form.loaded());
  };
  int found = 0;
  proprieta_linee(doc, 1, found);
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(found, 1);
  EXPECT_EQ(std::tie(o.speslinea, o.TipoLinea, o.Xi, o.Yf, o.stato), std::tuple(5.F, 1, 1.5, 2., stato_presente));
}

TEST_F(Proprieta, MoreVerticesThanAnObjectCanHold) {
  polilinea lunga;
  lunga.vertic(32767);
  polilinea& o = scegli(lunga);
  desktop.modal = [&](Form& form) {
    TipoLineaForm& f = bas.TipoLinea;
    EXPECT_EQ(f.vertici.List1(1).ListCount, 32767);
    for (int i = 0; i <= 1; ++i) f.vertici.List1(i).AddItem("1");
    EXPECT_THROW(f.Command1.Click(), RuntimeError);
    EXPECT_EQ(o.vertic(), 32767);
    form.unload();
  };
  int found = 0;
  proprieta_polilinee(doc, 1, found);
}

// A dialog that was left opens as new the next time.
TEST_F(Proprieta, NothingStaysInADialog) {
  scegli(Cerchio{});
  int shown = 0;
  desktop.modal = [&](Form& form) {
    TipoSuperficieForm& f = bas.TipoSuperficie;
    EXPECT_EQ(f.Text4.Visible, shown == 0);
    EXPECT_EQ(f.Label3.Visible, shown == 0);
    EXPECT_EQ(f.vertici.Frame5.Visible, shown == 0);
    EXPECT_EQ(f.Caption.get().starts_with("Caratteristiche"), shown != 0);
    ++shown;
    form.unload();
  };
  int found = 0;
  proprieta_cerchi(doc, 1, found);
  mnutiposup_Click(doc);
  EXPECT_EQ(shown, 2);
}

TEST_F(Proprieta, NothingSelectedShowsNothing) {
  collezione_di<Arco>(doc.dis).aggiungi(Arco{});
  desktop.modal = [](Form&) { ADD_FAILURE(); };
  int found = 0;
  for (const auto& proprieta : bas.proprieta) proprieta(doc, 1, found);
  EXPECT_EQ(found, 0);
}

// Whatever the angle box holds, a text is either whole or unchanged.
TEST_F(Proprieta, TextAttributesOrNone) {
  testo t;
  t.stringa_testo = "a";
  testo& o = scegli(t);
  desktop.modal = [&](Form& form) {
    GesttestoForm& f = bas.Gesttesto;
    f.Text1.Text = "b";
    for (const char* angle : {"", "x", "99999999999", "-"}) {
      f.Text2.Text = angle;
      EXPECT_THROW(f.Command1.Click(), RuntimeError) << angle;
    }
    f.Text2.Text = "-370";
    f.Text4.Text = "";
    EXPECT_THROW(f.Command1.Click(), RuntimeError);
    EXPECT_EQ(o.stringa_testo, "a");
    EXPECT_EQ(o.ang_testo(), 0);
    f.Text4.Text = "2";
    f.Command1.Click();
    EXPECT_FALSE(form.loaded());
  };
  int found = 0;
  proprieta_testi(doc, 1, found);
  EXPECT_EQ(o.stringa_testo, "b");
  EXPECT_EQ(o.ang_testo(), -370);
  EXPECT_EQ(o.pos_testoy, 2);
}

}  // namespace

}  // namespace trelvo
