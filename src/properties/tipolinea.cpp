#include "properties/tipolinea.h"

#include <algorithm>
#include <array>

#include "platform/numbers.h"
#include "properties/attributi.h"
#include "properties/contorno.h"
#include "properties/elenco_vertici.h"
#include "properties/mostra_scelti.h"
#include "properties/selezionati.h"

namespace trelvo {

namespace {

constexpr const char* una_linea = "Proprietà Linea Selezionata";
constexpr const char* molte_linee = "Proprietà Linee Selezionate";
constexpr const char* un_arco = "Proprietà Arco Selezionato";
constexpr const char* molti_archi = "Proprietà Archi Selezionati";
constexpr const char* una_polilinea = "Proprietà PoliLinea Selezionata";
constexpr const char* molte_polilinee = "Proprietà PoliLinee Selezionate";

constexpr int larghezza_massima = 100;  // of the preview's line

struct modo {
  const char* titolo;
  void (*applica)(distipo&);
};
constexpr std::array modi{modo{una_linea, set_tipoLinea},
                          modo{molte_linee, set_tipoLinee},
                          modo{un_arco, set_tipoArco},
                          modo{molti_archi, set_tipoArchi},
                          modo{una_polilinea, set_tipoPoliLinea},
                          modo{molte_polilinee, set_tipoPoliLinee},
                          modo{"Caratteristiche Generali", set_carattGenLinee}};

// ---- preview

void dislinea(TipoLineaForm& f) {
  f.anteprima.Cls();
  if (const auto spessore = valore_in_vista(f.Label1)) {
    f.Line1.BorderWidth = std::clamp(*spessore, std::int32_t{1}, larghezza_massima);
  }
  if (const auto tratto = valore_in_vista(f.Label8)) f.Line1.BorderStyle = *tratto;
  if (const auto colore = valore_in_vista(f.Label2)) f.Line1.BorderColor = *colore;
}

contorno contorno_di(TipoLineaForm& f) {
  return {f.Text1, f.Label1, f.Label2, f.Label8, f.picture1, f.Frame3, [&f] { dislinea(f); }};
}

// ---- filling

template <class Classe>
void mostra_attributi(TipoLineaForm& f, const Classe& o) {
  const auto [colore, spessore, tratto] = trelvo::contorno_di(o);
  mostra_contorno(contorno_di(f), tratto, spessore_mostrato(spessore), colore);
}

void riempi_generali(const trelvobas& bas, TipoLineaForm& f) {
  mostra_contorno(contorno_di(f), bas.def.tipolineadef, spessore_mostrato(bas.def.spessorelineadef),
                  bas.def.colorelineadef);
}

void mostra_punto(const trelvobas& bas, TextBox& x, TextBox& y, double valore_x, double valore_y) {
  x.Text = coordinata(bas, valore_x);
  y.Text = coordinata(bas, valore_y);
}

void riempi(const trelvobas& bas, TipoLineaForm& f, const Linea& o) {
  mostra_attributi(f, o);
  f.Frame4.Visible = true;
  for (Control* terzo : std::initializer_list<Control*>{&f.Label6, &f.Label7, &f.Text2, &f.Text3}) {
    terzo->Visible = false;
  }
  mostra_punto(bas, f.Text5, f.Text6, o.Xi, o.Yi);
  mostra_punto(bas, f.Text7, f.Text8, o.Xf, o.Yf);
}

void riempi(const trelvobas& bas, TipoLineaForm& f, const Arco& o) {
  mostra_attributi(f, o);
  f.Frame4.Visible = true;
  f.Frame4.Caption = "Arco";
  f.Label3.Caption = "Punto iniziale  X1 =";
  f.Label6.Caption = "Punto finale    X2 =";
  f.Label11.Caption = "3° Punto    X3 =";
  f.Label10.Caption = "Y3 =";
  mostra_punto(bas, f.Text5, f.Text6, o.p1x, o.p1y);
  mostra_punto(bas, f.Text2, f.Text3, o.p2x, o.p2y);
  mostra_punto(bas, f.Text7, f.Text8, o.p3x, o.p3y);
}

void riempi(const trelvobas& bas, TipoLineaForm& f, const polilinea& o) {
  mostra_attributi(f, o);
  f.vertici.Frame5.Visible = true;
  riempi_elenco(bas, f.vertici, o.vertici.tutti());
}

template <class Classe>
void riempi_uno(const trelvobas& bas, TipoLineaForm& f) {
  const Classe* o = bas.attivo() == nullptr ? nullptr : primo_scelto<Classe>(bas.attivo()->dis);
  if (o != nullptr) riempi(bas, f, *o);
}

void Label5_Change(trelvobas& bas) {
  TipoLineaForm& f = bas.TipoLinea;
  const std::string& titolo = f.Caption;
  if (f.Label5.Caption.get().empty()) return;
  if (numeric_prefix(f.Label5.Caption.get()) == 0) {
    riempi_generali(bas, f);
  } else if (titolo == una_linea) {
    riempi_uno<Linea>(bas, f);
  } else if (titolo == un_arco) {
    riempi_uno<Arco>(bas, f);
  } else if (titolo == una_polilinea) {
    riempi_uno<polilinea>(bas, f);
  }
  dislinea(f);
}

// ---- confirming

void Command1_Click(trelvobas& bas) {
  TipoLineaForm& f = bas.TipoLinea;
  const std::string titolo = f.Caption;
  const auto* riga =
      std::find_if(modi.begin(), modi.end(), [&](const modo& m) { return titolo.starts_with(m.titolo); });
  if (riga != modi.end() && bas.attivo() != nullptr) riga->applica(*bas.attivo());
  f.unload();
}

attributi_contorno attributi_scelti(const TipoLineaForm& f) {
  return {colore_scelto(f.Label2), spessore_scelto(f.Label1), tratto_scelto(f.Label8)};
}

// All that the dialog holds is read before the object changes.
template <class Classe, class Forma>
void set_uno(distipo& doc, Forma&& forma) {
  const attributi_contorno attributi = attributi_scelti(doc.bas.TipoLinea);
  per_scelti<Classe>(doc.dis, [&](Classe& o) {
    forma(o);
    dai(o, attributi);
  });
}

template <class Classe>
void set_molti(distipo& doc) {
  const attributi_contorno attributi = attributi_scelti(doc.bas.TipoLinea);
  per_scelti<Classe>(doc.dis, [&](Classe& o) { dai(o, attributi); });
}

// ---- opening on a selection

template <class Classe>
void mostra_molti(TipoLineaForm& f, const collezione<Classe>& coll, const Classe& primo) {
  const auto [colore, spessore, tratto] = trelvo::contorno_di(primo);
  const auto uguale = [&](auto indice) {
    return concordi(coll, [](const Classe& o) { return std::get<decltype(indice)::value>(trelvo::contorno_di(o)); });
  };
  const bool stesso_colore = uguale(std::integral_constant<std::size_t, 0>());
  const bool stesso_spessore = uguale(std::integral_constant<std::size_t, 1>());
  const bool stesso_tratto = uguale(std::integral_constant<std::size_t, 2>());
  mostra_contorno(contorno_di(f), stesso_tratto ? std::optional(tratto) : std::nullopt,
                  stesso_spessore ? std::optional(spessore_mostrato(spessore)) : std::nullopt,
                  stesso_colore ? std::optional(colore) : std::nullopt);
}

template <class Classe>
void proprieta_di(distipo& doc, int& contatore, const titoli_scelti& titoli) {
  TipoLineaForm& f = doc.bas.TipoLinea;
  mostra_scelti<Classe>(doc, contatore, f, f.Label5, titoli,
                        [&f](const auto& coll, const Classe& primo) { mostra_molti(f, coll, primo); });
}

}  // namespace

void prepara_TipoLinea(trelvobas& bas) {
  TipoLineaForm& f = bas.TipoLinea;
  prepara_contorno(bas, contorno_di(f), f.Command4);
  prepara_elenco(bas, f.vertici, [&f] { dislinea(f); });
  f.Label5.Caption.on_change([&bas] { Label5_Change(bas); });
  f.Command1.Click = [&bas] { Command1_Click(bas); };
  f.Command2.Click = [&f] { f.unload(); };
  f.Unloaded = [&f] { f.azzera(); };
}

void mnutipolinea_Click(distipo& doc) {
  doc.bas.TipoLinea.Label5.Caption = "0";
  doc.bas.desktop.show_modal(doc.bas.TipoLinea);
}

void set_carattGenLinee(distipo& doc) {
  predefiniti& def = doc.bas.def;
  const TipoLineaForm& f = doc.bas.TipoLinea;
  const auto spessore = indice_scelto(f.Label1);
  const auto colore = colore_scelto(f.Label2);
  const auto tratto = tratto_scelto(f.Label8);
  def.spessorelineadef = spessore.value_or(def.spessorelineadef);
  def.colorelineadef = colore.value_or(def.colorelineadef);
  def.tipolineadef = tratto.value_or(def.tipolineadef);
  doc.bas.salvafileini_dis(doc);
}

void set_tipoLinea(distipo& doc) {
  const TipoLineaForm& f = doc.bas.TipoLinea;
  const double Xi = coordinata_di(doc.bas, f.Text5);
  const double Yi = coordinata_di(doc.bas, f.Text6);
  const double Xf = coordinata_di(doc.bas, f.Text7);
  const double Yf = coordinata_di(doc.bas, f.Text8);
  set_uno<Linea>(doc, [&](Linea& o) {
    o.Xi = Xi;
    o.Yi = Yi;
    o.Xf = Xf;
    o.Yf = Yf;
  });
}

void set_tipoArco(distipo& doc) {
  const TipoLineaForm& f = doc.bas.TipoLinea;
  const std::array caselle{&f.Text5, &f.Text6, &f.Text2, &f.Text3, &f.Text7, &f.Text8};
  std::array<double, caselle.size()> p{};
  std::transform(caselle.begin(), caselle.end(), p.begin(),
                 [&](const TextBox* casella) { return coordinata_di(doc.bas, *casella); });
  set_uno<Arco>(doc, [&](Arco& o) {
    o.p1x = p[0];
    o.p1y = p[1];
    o.p2x = p[2];
    o.p2y = p[3];
    o.p3x = p[4];
    o.p3y = p[5];
  });
}

void set_tipoPoliLinea(distipo& doc) {
  const std::vector<vertice> vertici = vertici_di(doc.bas, doc.bas.TipoLinea.vertici);
  set_uno<polilinea>(doc, [&](polilinea& o) {
    o.vertic(static_cast<std::int16_t>(vertici.size()));
    std::copy(vertici.begin(), vertici.end(), o.vertici.tutti().begin());
  });
}

void set_tipoLinee(distipo& doc) { set_molti<Linea>(doc); }
void set_tipoArchi(distipo& doc) { set_molti<Arco>(doc); }
void set_tipoPoliLinee(distipo& doc) { set_molti<polilinea>(doc); }

void proprieta_linee(distipo& doc, int /*n*/, int& contatore) {
  proprieta_di<Linea>(doc, contatore, {una_linea, molte_linee});
}
void proprieta_archi(distipo& doc, int /*n*/, int& contatore) {
  proprieta_di<Arco>(doc, contatore, {un_arco, molti_archi});
}
void proprieta_polilinee(distipo& doc, int /*n*/, int& contatore) {
  proprieta_di<polilinea>(doc, contatore, {una_polilinea, molte_polilinee});
}

}  // namespace trelvo
