#include <algorithm>

#include "edit/edit.h"
#include "edit/passata.h"
#include "geometry/misure.h"

namespace trelvo {

namespace {

// The copy has the source's vertices, and no marks.
void copia_vertici(const elencovertici& da, elencovertici& a) {
  a.vertic(da.vertic());
  const auto punti = da.tutti();
  std::copy(punti.begin(), punti.end(), a.tutti().begin());
}

void stira_vertici(elencovertici& vertici, const modifica_in_corso& m) {
  const auto punti = vertici.tutti();
  for (std::size_t i = 0; i < punti.size(); ++i) {
    const int indice = static_cast<int>(i) + 1;
    if (vertici.selezionato(indice) != 1) continue;
    m.sposta(punti[i].x, punti[i].y);
    vertici.seleziona(0, indice);
  }
}

struct modi_polilinea : modi_comuni<polilinea> {
  static polilinea copia_di(const polilinea& o) {
    polilinea nuova;
    nuova.colcont = o.colcont;
    nuova.spescont = o.spescont;
    nuova.trattcont = o.trattcont;
    copia_vertici(o.vertici, nuova.vertici);
    return nuova;
  }
  static void stira(polilinea& o, const modifica_in_corso& m) { stira_vertici(o.vertici, m); }
};

// Rectangles and surfaces: a copy keeps the measures, a stretch takes them anew.
template <class Classe>
struct modi_chiusa : modi_comuni<Classe> {
  static Classe copia_di(const Classe& o) {
    Classe nuova;
    nuova.campitura = o.campitura;
    nuova.colcont = o.colcont;
    nuova.colocampitura = o.colocampitura;
    nuova.perimet = o.perimet;
    nuova.spescont = o.spescont;
    nuova.supf = o.supf;
    nuova.trattcont = o.trattcont;
    copia_vertici(o.vertici, nuova.vertici);
    return nuova;
  }
  static void stira(Classe& o, const modifica_in_corso& m) {
    stira_vertici(o.vertici, m);
    o.perimet = perimetro(o.vertici.tutti());
    o.supf = area(o.vertici.tutti());
  }
};

}  // namespace

void eseguiComandoModifica_su_Polilinee(distipo& doc, int n, int& contatore) {
  passata<polilinea, modi_polilinea>(doc, n, contatore);
}

void eseguiComandoModifica_su_Rettangoli(distipo& doc, int n, int& contatore) {
  passata<Rettangolo, modi_chiusa<Rettangolo>>(doc, n, contatore);
}

void eseguiComandoModifica_su_Superfici(distipo& doc, int n, int& contatore) {
  passata<superficie, modi_chiusa<superficie>>(doc, n, contatore);
}

}  // namespace trelvo
