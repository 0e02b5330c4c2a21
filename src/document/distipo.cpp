#include "document/distipo.h"

#include "document/trelvobas.h"

namespace trelvo {

namespace {

constexpr float lato_barra = 255;  // of the scroll strips, twips
constexpr float lato_mira = 150;   // of the pick box and the snap marker, twips

struct voce {
  int indice;
  const char* titolo;
  int tasto = 0;
};

void riempi(ControlArray<MenuItem>& menu, Form& form, const char* nome, MenuItem& sopra,
            std::initializer_list<voce> voci) {
  for (const voce& v : voci) menu.add(form, nome, v.indice, v.titolo, &sopra, v.tasto);
}

}  // namespace

distipoForm::distipoForm() : Form("distipo") {
  // Items of an array come before the single ones that were declared with their menu.
  const auto dopo = [](MenuItem& menu) {
    std::vector<MenuItem*> singole;
    singole.swap(menu.items);
    return singole;
  };

  const auto esporta = dopo(file);
  riempi(opfile, *this, "opfile", file,
         {{1, "Nuovo"},
          {2, "Apri"},
          {3, "Salva"},
          {4, "Salva con Nome"},
          {5, "Chiudi"},
          {6, "-"},
          {7, "Imposta Stampante"},
          {8, "Stampa"}});
  file.items.insert(file.items.end(), esporta.begin(), esporta.end());

  riempi(opdis, *this, "opdis", disegna,
         {{1, "Linea"},
          {2, "Cerchio"},
          {3, "Arco"},
          {4, "Testo"},
          {5, "Polilinea"},
          {6, "Superficie"},
          {7, "Rettangolo"}});
  riempi(selezoom, *this, "selezoom", visual, {{1, "Zoom Area"}, {2, "Zoom Tutto"}, {3, "Zoom Prec."}, {4, "Zoom %"}});
  riempi(barre, *this, "barre", visual,
         {{1, "Barra strumenti"},
          {2, "-"},
          {3, "Coordinate cursore"},
          {4, "Riga Comandi"},
          {5, "-"},
          {6, "Barra scorrimento orizzontale"},
          {7, "Barra scorrimento verticale"}});
  const auto distanza = dopo(mnuedita);
  riempi(modifica, *this, "modifica", mnuedita,
         {{1, "Imposta Selezione"},
          {2, "-"},
          {3, "Cancella"},
          {4, "Sposta"},
          {5, "Copia"},
          {6, "Ruota"},
          {7, "Specchio"},
          {8, "Stira"},
          {9, "Proprietà Oggetto"},
          {10, "-"}});
  mnuedita.items.insert(mnuedita.items.end(), distanza.begin(), distanza.end());
  riempi(impo, *this, "impo", modifica(1),
         {{1, "Seleziona Oggetto"}, {2, "Seleziona Finestra"}, {3, "Seleziona Intersezione"}});
  riempi(aiutdis, *this, "aiutdis", aiuti,
         {{1, "Impost. Generali"},
          {2, "Caratteristiche Oggetti"},
          {3, "-"},
          {4, "Snap", key_f6},
          {5, "Grid ", key_f7},
          {6, "Orto", key_f8},
          {7, "Mostra Bordo Testo"}});
  const auto sotto = [&](const char* nome, const char* titolo) {
    return std::make_unique<MenuItem>(*this, nome, no_index, titolo, &aiutdis(2));
  };
  mnutipolinea = sotto("mnutipolinea", "Linee, Polilinee, Archi");
  mnutiposup = sotto("mnutiposup", "Superfici, Rettangoli, Cerchi");
  mnutipotesto = sotto("mnutipotesto", "Testo");
  riempi(filtri, *this, "filtri", menufiltri,
         {{0, "Libero"}, {1, "-"}, {2, "Inizio"}, {3, "Fine"}, {4, "Medio"}, {5, "-"}, {6, "Centro"}});

  Picture3.Height = lato_barra;
  Picture4.Width = lato_barra;
  Shape2.Width = Shape2.Height = lato_mira;
  Shape3.Width = Shape3.Height = lato_mira;
  for (int i = 1; i <= 7; ++i) {
    if (i != 2 && i != 5) barre(i).Checked = true;
  }
  impo(3).Checked = true;
}

distipo::distipo(trelvobas& programma, FontService& caratteri, int numero_progressivo)
    : bas(programma), numero(numero_progressivo), surface(caratteri) {}

}  // namespace trelvo
