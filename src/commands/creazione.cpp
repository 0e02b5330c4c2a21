#include "commands/creazione.h"

#include "document/trelvobas.h"
#include "geometry/misure.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

template <class Oggetto>
void dai_linea(const predefiniti& def, Oggetto& o) {
  o.colcont = def.colorelineadef;
  o.spescont = static_cast<float>(def.spessorelineadef);
  o.trattcont = def.tipolineadef;
}

template <class Oggetto>
void dai_superficie(const predefiniti& def, Oggetto& o) {
  o.campitura = def.campituradef;
  o.colocampitura = def.colocampituradef;
  o.colcont = def.colcontdef;
  o.spescont = static_cast<float>(def.spescontdef);
  o.trattcont = def.trattcontdef;
}

template <class Oggetto>
void misura_contorno(Oggetto& o) {
  o.perimet = perimetro(o.vertici.tutti());
  o.supf = area(o.vertici.tutti());
}

// Paints the finished object, adds it and leaves a fresh one in its place. The command may have started before the
// last save.
template <class Oggetto>
Oggetto& concludi(distipo& doc, Oggetto& cursore) {
  disegna(doc, cursore, true);
  doc.cmd.modificato = 1;
  Oggetto& aggiunto = collezione_di<Oggetto>(doc.dis).aggiungi(std::move(cursore));
  cursore = Oggetto{};
  return aggiunto;
}

void aggiungi_linea(distipo& doc) {
  const predefiniti& def = doc.bas.def;
  Linea& linea = doc.bas.cur.curLinea;
  linea.colorelinea = def.colorelineadef;
  linea.speslinea = static_cast<float>(def.spessorelineadef);
  linea.TipoLinea = def.tipolineadef;
  concludi(doc, linea);
}

void aggiungi_cerchio(distipo& doc) {
  Cerchio& cerchio = doc.bas.cur.curCerchio;
  dai_superficie(doc.bas.def, cerchio);
  const misure_cerchio m = misure_di_cerchio(cerchio.Xcentro, cerchio.Ycentro, cerchio.Xpunto, cerchio.YPunto);
  cerchio.raggio = m.raggio;
  cerchio.perimet = m.perimet;
  cerchio.supf = m.supf;
  concludi(doc, cerchio);
}

}  // namespace

void aggiungi_oggetto(distipo& doc, const std::string& tipo) {
  const predefiniti& def = doc.bas.def;
  cursori& cur = doc.bas.cur;
  if (tipo == "Superficie") {
    if (cur.curSuperficie.vertic() < 2) return;
    dai_superficie(def, cur.curSuperficie);
    misura_contorno(concludi(doc, cur.curSuperficie));
  } else if (tipo == "Polilinea") {
    if (cur.curPolilinea.vertic() < 2) return;
    dai_linea(def, cur.curPolilinea);
    concludi(doc, cur.curPolilinea);
  } else if (tipo == "Rettangolo") {
    dai_superficie(def, cur.curRettangolo);
    misura_contorno(concludi(doc, cur.curRettangolo));
  } else if (tipo == "Linea") {
    aggiungi_linea(doc);
  } else if (tipo == "Cerchio") {
    aggiungi_cerchio(doc);
  } else if (tipo == "Arco") {
    dai_linea(def, cur.curArco);
    concludi(doc, cur.curArco);
    doc.Line4.Visible = false;
  }
}

}  // namespace trelvo
