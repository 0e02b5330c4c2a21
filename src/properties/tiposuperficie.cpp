#include "properties/tiposuperficie.h"

#include <algorithm>
#include <array>

#include "geometry/misure.h"
#include "platform/numbers.h"
#include "properties/attributi.h"
#include "properties/contorno.h"
#include "properties/elenco_vertici.h"
#include "properties/mostra_scelti.h"
#include "properties/selezionati.h"

namespace trelvo {

namespace {

constexpr const char* una_superficie = "Proprietà Superficie Selezionata";
constexpr const char* molte_superfici = "Proprietà Superfici Selezionate";
constexpr const char* un_rettangolo = "Proprietà Rettangolo Selezionato";
constexpr const char* molti_rettangoli = "Proprietà Rettangoli Selezionati";
constexpr const char* un_cerchio = "Proprietà Cerchio Selezionato";
constexpr const char* molti_cerchi = "Proprietà Cerchi Selezionati";

struct modo {
  const char* titolo;
  void (*applica)(distipo&);
};
constexpr std::array modi{modo{una_superficie, set_tipoSuperficie},
                          modo{molte_superfici, set_tipoSuperfici},
                          modo{un_rettangolo, set_tipoRettangolo},
                          modo{molti_rettangoli, set_tiporettangoli},
                          modo{un_cerchio, set_tipoCerchio},
                          modo{molti_cerchi, set_tipoCerchi},
                          modo{"Caratteristiche Generali Superfici", set_carattGenSup}};

// ---- preview

// Fill styles of a shape, by the stored fill.
constexpr std::array stili_campitura{2, 3, 4, 5, 6, 7, 0, 1};

void anteprimasuperficie(TipoSuperficieForm& f) {
  if (const auto campitura = valore_in_vista(f.Label9)) {
    const auto indice = static_cast<std::size_t>(*campitura);
    if (indice < stili_campitura.size()) f.Shape1.FillStyle = stili_campitura[indice];
  }
  if (const auto colore = valore_in_vista(f.Label10)) f.Shape1.FillColor = *colore;
  if (const auto colore = valore_in_vista(f.Label6)) f.Shape1.BorderColor = *colore;
  if (const auto tratto = valore_in_vista(f.Label8)) f.Shape1.BorderStyle = *tratto;
}

contorno contorno_di(TipoSuperficieForm& f) {
  return {f.Text1, f.Label7, f.Label6, f.Label8, f.picture1, f.Frame3, [&f] { anteprimasuperficie(f); }};
}

// ---- filling

void mostra_campitura(TipoSuperficieForm& f, std::optional<std::int32_t> campitura, std::optional<Color> colore) {
  const bool nella_lista = campitura && *campitura >= 0 && *campitura < f.List2.ListCount;
  f.List2.ListIndex = nella_lista ? *campitura : -1;
  mostra_valore(f.Label9, campitura);
  mostra_valore(f.Label10, colore);
}

void riempi_generali(const trelvobas& bas, TipoSuperficieForm& f) {
  const predefiniti& def = bas.def;
  mostra_campitura(f, def.campituradef, def.colocampituradef);
  mostra_contorno(contorno_di(f), def.trattcontdef, spessore_mostrato(def.spescontdef), def.colcontdef);
}

template <class Classe>
void mostra_attributi(TipoSuperficieForm& f, const Classe& o) {
  mostra_campitura(f, o.campitura, o.colocampitura);
  mostra_contorno(contorno_di(f), o.trattcont, spessore_mostrato(o.spescont), o.colcont);
}

template <class Classe>
void mostra_misure(const trelvobas& bas, TipoSuperficieForm& f, const Classe& o) {
  const auto misura = [&](double valore) { return fixed_text(valore, 2, bas.desktop.regional(), true); };
  f.Label3.Caption = "Perimetro =" + misura(o.perimet);
  f.Label4.Caption = "Area    =" + misura(o.supf);
  f.Label3.Visible = true;
  f.Label4.Visible = true;
  if constexpr (std::is_same_v<Classe, Cerchio>) {
    f.Label2.Caption = "Raggio= " + misura(o.raggio);
    f.Label2.Visible = true;
  }
}

void mostra_vertici(const trelvobas& bas, TipoSuperficieForm& f, const char* titolo, std::span<const vertice> vertici) {
  f.vertici.Frame5.Visible = true;
  f.vertici.Frame5.Caption = titolo;
  riempi_elenco(bas, f.vertici, vertici);
}

void riempi(const trelvobas& bas, TipoSuperficieForm& f, const superficie& o) {
  mostra_vertici(bas, f, "Coordinate Vertici Superficie", o.vertici.tutti());
}

// A rectangle stays at four vertices.
void riempi(const trelvobas& bas, TipoSuperficieForm& f, const Rettangolo& o) {
  mostra_vertici(bas, f, "Coordinate Vertici Rettangolo", o.vertici.tutti());
  f.vertici.Command6.Visible = false;
  f.vertici.Command7.Visible = false;
}

void riempi(const trelvobas& bas, TipoSuperficieForm& f, const Cerchio& o) {
  mostra_vertici(bas, f, titolo_centro, {});
  for (const auto& [indice, lista] : f.vertici.List1.items()) lista->Visible = false;
  f.vertici.Command6.Visible = false;
  f.vertici.Command7.Visible = false;
  for (Control* c : std::initializer_list<Control*>{&f.Label11, &f.Text2, &f.Label12, &f.Text3, &f.Label13, &f.Text4}) {
    c->Visible = true;
  }
  f.Text2.Text = coordinata(bas, o.Xcentro);
  f.Text3.Text = coordinata(bas, o.Ycentro);
  f.Text4.Text = coordinata(bas, o.raggio);
}

template <class Classe>
void riempi_uno(const trelvobas& bas, TipoSuperficieForm& f) {
  const Classe* o = bas.attivo() == nullptr ? nullptr : primo_scelto<Classe>(bas.attivo()->dis);
  if (o == nullptr) return;
  mostra_attributi(f, *o);
  riempi(bas, f, *o);
  mostra_misure(bas, f, *o);
}

void Label1_Change(trelvobas& bas) {
  TipoSuperficieForm& f = bas.TipoSuperficie;
  const std::string& titolo = f.Caption;
  if (f.Label1.Caption.get() == f.nessuno) return;
  if (numeric_prefix(f.Label1.Caption.get()) == 0) {
    riempi_generali(bas, f);
  } else if (titolo == una_superficie) {
    riempi_uno<superficie>(bas, f);
  } else if (titolo == un_rettangolo) {
    riempi_uno<Rettangolo>(bas, f);
  } else if (titolo == un_cerchio) {
    riempi_uno<Cerchio>(bas, f);
  }
  anteprimasuperficie(f);
}

// ---- centre and radius

void registra_cerchio(trelvobas& bas) {
  TipoSuperficieForm& f = bas.TipoSuperficie;
  const CoordVertForm& v = bas.CoordVert;
  const std::string x = coordinata(bas, coordinata_di(bas, v.Text1));
  const std::string y = coordinata(bas, coordinata_di(bas, v.Text2));
  const std::string r = coordinata(bas, coordinata_di(bas, v.Text3));
  f.Text2.Text = x;
  f.Text3.Text = y;
  f.Text4.Text = r;
}

void modifica_cerchio(trelvobas& bas) {
  const TipoSuperficieForm& f = bas.TipoSuperficie;
  CoordVertForm& v = bas.CoordVert;
  v.azzera();
  v.Caption = "Coordinate Centro Cerchio";
  v.Frame4.Caption = v.Caption;
  v.Label10.Caption = f.Label11.Caption;
  v.Label11.Caption = f.Label12.Caption;
  v.Command1.Caption = "Registra Modifica";
  for (Control* raggio : std::initializer_list<Control*>{&v.Frame1, &v.Label12, &v.Text3}) raggio->Visible = true;
  v.Text1.Text = f.Text2.Text;
  v.Text2.Text = f.Text3.Text;
  v.Text3.Text = f.Text4.Text;
  mostra_CoordVert(bas, [&bas] { registra_cerchio(bas); });
}

// ---- confirming

void Command1_Click(trelvobas& bas) {
  TipoSuperficieForm& f = bas.TipoSuperficie;
  const std::string titolo = f.Caption;
  const auto* riga =
      std::find_if(modi.begin(), modi.end(), [&](const modo& m) { return titolo.starts_with(m.titolo); });
  if (riga != modi.end() && bas.attivo() != nullptr) riga->applica(*bas.attivo());
  f.unload();
}

struct attributi {
  attributi_contorno contorno;
  attributi_campitura campitura;
};

attributi attributi_scelti(const TipoSuperficieForm& f) {
  return {{colore_scelto(f.Label6), spessore_scelto(f.Label7), tratto_scelto(f.Label8)},
          {indice_scelto(f.Label9), colore_scelto(f.Label10)}};
}

// All that the dialog holds is read before the object changes.
template <class Classe, class Forma>
void set_tipo(distipo& doc, Forma&& forma) {
  const attributi a = attributi_scelti(doc.bas.TipoSuperficie);
  per_scelti<Classe>(doc.dis, [&](Classe& o) {
    forma(o);
    dai(o, a.contorno);
    dai(o, a.campitura);
  });
}

template <class Classe>
void set_molti(distipo& doc) {
  set_tipo<Classe>(doc, [](const Classe&) {});
}

template <class Classe>
void set_vertici(distipo& doc) {
  const std::vector<vertice> vertici = vertici_di(doc.bas, doc.bas.TipoSuperficie.vertici);
  set_tipo<Classe>(doc, [&](Classe& o) {
    o.vertic(static_cast<std::int16_t>(vertici.size()));
    std::copy(vertici.begin(), vertici.end(), o.vertici.tutti().begin());
    o.perimet = perimetro(o.vertici.tutti());
    o.supf = area(o.vertici.tutti());
  });
}

// ---- opening on a selection

template <class Classe>
void mostra_molti(TipoSuperficieForm& f, const collezione<Classe>& coll, const Classe& primo) {
  const auto comune = [&](auto campo) {
    return concordi(coll, [campo](const Classe& o) { return o.*campo; }) ? std::optional(primo.*campo) : std::nullopt;
  };
  const auto spessore = comune(&Classe::spescont);
  mostra_campitura(f, comune(&Classe::campitura), comune(&Classe::colocampitura));
  mostra_contorno(contorno_di(f), comune(&Classe::trattcont),
                  spessore ? std::optional(spessore_mostrato(*spessore)) : std::nullopt, comune(&Classe::colcont));
}

template <class Classe>
void proprieta_di(distipo& doc, int& contatore, const titoli_scelti& titoli) {
  TipoSuperficieForm& f = doc.bas.TipoSuperficie;
  mostra_scelti<Classe>(doc, contatore, f, f.Label1, titoli,
                        [&f](const auto& coll, const Classe& primo) { mostra_molti(f, coll, primo); });
}

}  // namespace

void prepara_TipoSuperficie(trelvobas& bas) {
  TipoSuperficieForm& f = bas.TipoSuperficie;
  const auto anteprima = [&f] { anteprimasuperficie(f); };
  prepara_contorno(bas, contorno_di(f), f.Command4);
  collega_colore(bas, f.Command5, f.Label10, anteprima);
  prepara_elenco(bas, f.vertici, anteprima);
  f.vertici.Command3.Click = [&bas, &f, vertice_scelto = f.vertici.Command3.Click] {
    f.Text4.Visible ? modifica_cerchio(bas) : vertice_scelto();
  };
  f.Text2.KeyPress = tasto_coordinata(bas, [&f] { return &f.Text3; });
  f.Text3.KeyPress = tasto_coordinata(bas, [&f] { return &f.Text4; });
  f.Text4.KeyPress = tasto_coordinata(bas, [&f] { return &f.Command1; });
  f.List2.Click = [&f] {
    f.Label9.Visible = false;
    f.Label9.Caption = std::to_string(f.List2.ListIndex.get());
    anteprimasuperficie(f);
  };
  f.Label1.Caption.on_change([&bas] { Label1_Change(bas); });
  f.Command1.Click = [&bas] { Command1_Click(bas); };
  f.Command2.Click = [&f] { f.unload(); };
  f.Unloaded = [&f] { f.azzera(); };
}

void mnutiposup_Click(distipo& doc) {
  doc.bas.TipoSuperficie.Label1.Caption = "0";
  doc.bas.desktop.show_modal(doc.bas.TipoSuperficie);
}

void set_carattGenSup(distipo& doc) {
  predefiniti& def = doc.bas.def;
  const TipoSuperficieForm& f = doc.bas.TipoSuperficie;
  const attributi_campitura campitura{indice_scelto(f.Label9), colore_scelto(f.Label10)};
  const auto spessore = indice_scelto(f.Label7);
  const auto colore = colore_scelto(f.Label6);
  const auto tratto = tratto_scelto(f.Label8);
  def.campituradef = campitura.campitura.value_or(def.campituradef);
  def.colocampituradef = campitura.colore.value_or(def.colocampituradef);
  def.colcontdef = colore.value_or(def.colcontdef);
  def.spescontdef = spessore.value_or(def.spescontdef);
  def.trattcontdef = tratto.value_or(def.trattcontdef);
  doc.bas.salvafileini_dis(doc);
}

void set_tipoSuperficie(distipo& doc) { set_vertici<superficie>(doc); }
void set_tipoRettangolo(distipo& doc) { set_vertici<Rettangolo>(doc); }

// The point on the rim lies to the right of the centre.
void set_tipoCerchio(distipo& doc) {
  const TipoSuperficieForm& f = doc.bas.TipoSuperficie;
  const double Xcentro = coordinata_di(doc.bas, f.Text2);
  const double Ycentro = coordinata_di(doc.bas, f.Text3);
  const double raggio = coordinata_di(doc.bas, f.Text4);
  set_tipo<Cerchio>(doc, [&](Cerchio& o) {
    o.Xcentro = Xcentro;
    o.Ycentro = Ycentro;
    o.Xpunto = Xcentro + raggio;
    o.YPunto = Ycentro;
    const misure_cerchio m = misure_di_cerchio(o.Xcentro, o.Ycentro, o.Xpunto, o.YPunto);
    o.raggio = m.raggio;
    o.perimet = m.perimet;
    o.supf = m.supf;
  });
}

void set_tipoSuperfici(distipo& doc) { set_molti<superficie>(doc); }
void set_tiporettangoli(distipo& doc) { set_molti<Rettangolo>(doc); }
void set_tipoCerchi(distipo& doc) { set_molti<Cerchio>(doc); }

void proprieta_superfici(distipo& doc, int /*n*/, int& contatore) {
  proprieta_di<superficie>(doc, contatore, {una_superficie, molte_superfici});
}
void proprieta_rettangoli(distipo& doc, int /*n*/, int& contatore) {
  proprieta_di<Rettangolo>(doc, contatore, {un_rettangolo, molti_rettangoli});
}
void proprieta_cerchi(distipo& doc, int /*n*/, int& contatore) {
  proprieta_di<Cerchio>(doc, contatore, {un_cerchio, molti_cerchi});
}

}  // namespace trelvo
