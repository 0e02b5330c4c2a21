#include "edit/edit.h"

#include <string>

#include "edit/copia.h"
#include "edit/passi.h"

namespace trelvo {

namespace {

// The main pass. Objects that a step adds are not passed through; references hold meanwhile.
template <class Classe, class Passo>
void passa(disegno& dis, int& contatore, Passo&& passo) {
  visita_selezionati<Classe>(dis, [&](Classe& o) {
    contatore = 1;
    o.stato = stato_presente;
    passo(o);
  });
}

template <class Classe>
void esegui_su(distipo& doc, int n, int& contatore) {
  const reccomando& record = doc.cmd.comandi[static_cast<std::size_t>(n)];
  const std::string& nome = record.tipo();
  punti_comando punti(record);
  collezione<Classe>& coll = collezione_di<Classe>(doc.dis);

  if (nome == "Cancella") {
    passa<Classe>(doc.dis, contatore, [](Classe& o) { o.stato = stato_cancellato; });
  } else if (nome == "Sposta") {
    passa<Classe>(doc.dis, contatore, [t = traslazione(punti)](Classe& o) { trasforma(o, t); });
  } else if (nome == "Copia") {
    passa<Classe>(doc.dis, contatore, [&coll, t = traslazione(punti)](const Classe& o) {
      Classe nuovo = copia_di(o);
      trasforma(nuovo, t);
      coll.aggiungi(std::move(nuovo));
    });
  } else if (nome == "Stira") {
    static_cast<void>(traslazione(punti));  // fails before anything has moved
    passa<Classe>(doc.dis, contatore, [&punti](Classe& o) { stira(o, punti); });
  } else if (nome == "Ruota") {
    passa<Classe>(doc.dis, contatore, [r = rotazione(punti)](Classe& o) { ruota(o, r); });
  } else if (nome == "Specchio") {
    passa<Classe>(doc.dis, contatore, [&coll, r = riflessione(punti)](const Classe& o) {
      Classe nuovo = copia_di(o);
      specchia(nuovo, r);
      coll.aggiungi(std::move(nuovo));
    });
  }
}

}  // namespace

void eseguiComandoModifica_su_Superfici(distipo& doc, int n, int& contatore) {
  esegui_su<superficie>(doc, n, contatore);
}
void eseguiComandoModifica_su_Linee(distipo& doc, int n, int& contatore) { esegui_su<Linea>(doc, n, contatore); }
void eseguiComandoModifica_su_Rettangoli(distipo& doc, int n, int& contatore) {
  esegui_su<Rettangolo>(doc, n, contatore);
}
void eseguiComandoModifica_su_Testi(distipo& doc, int n, int& contatore) { esegui_su<testo>(doc, n, contatore); }
void eseguiComandoModifica_su_Cerchi(distipo& doc, int n, int& contatore) { esegui_su<Cerchio>(doc, n, contatore); }
void eseguiComandoModifica_su_Archi(distipo& doc, int n, int& contatore) { esegui_su<Arco>(doc, n, contatore); }
void eseguiComandoModifica_su_Polilinee(distipo& doc, int n, int& contatore) {
  esegui_su<polilinea>(doc, n, contatore);
}

void aggiungi_modifiche(trelvobas& bas) {
  bas.modifiche = {eseguiComandoModifica_su_Superfici,  eseguiComandoModifica_su_Linee,
                   eseguiComandoModifica_su_Rettangoli, eseguiComandoModifica_su_Testi,
                   eseguiComandoModifica_su_Cerchi,     eseguiComandoModifica_su_Archi,
                   eseguiComandoModifica_su_Polilinee};
}

}  // namespace trelvo
