// What the edit commands have in common: the points of the command, and the pass over the selected objects.
#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "document/distipo.h"
#include "geometry/pigreco.h"
#include "geometry/trasformazioni.h"
#include "view/punti.h"

namespace trelvo {

enum class azione { cancella, sposta, copia, stira, ruota, specchio, nessuna };

// The command and its points. For "Ruota", x2 is the angle in degrees.
struct modifica_in_corso {
  azione cosa;
  double x1;
  double y1;
  double x2;
  double y2;

  modifica_in_corso(const distipo& doc, int n);
  void sposta(double& x, double& y) const {
    x += x2 - x1;
    y += y2 - y1;
  }
  void ruota(double& x, double& y) const { ruota_punto(x1, y1, x2 * pigreco / 180, x, y); }
};

// A class's own ways. Each class overrides what differs from it.
template <class Classe>
struct modi_comuni {
  // After its points have moved or turned.
  static void a_posto(Classe& /*o*/) {}
  static void ruota(Classe& o, const modifica_in_corso& m) {
    per_ogni_punto(o, [&](double& x, double& y) { m.ruota(x, y); });
  }
  // After its points have been reflected.
  static void riflesso(Classe& /*o*/) {}
};

// A copy takes what `copia_di` names and nothing else.
template <class Modi, class Classe>
void applica(disegno& dis, Classe& o, modifica_in_corso& m) {
  o.stato = stato_presente;
  const auto aggiungi = [&](Classe&& nuovo) { collezione_di<Classe>(dis).aggiungi(std::move(nuovo)); };
  switch (m.cosa) {
    case azione::cancella:
      o.stato = stato_cancellato;
      break;
    case azione::sposta:
      per_ogni_punto(o, [&](double& x, double& y) { m.sposta(x, y); });
      Modi::a_posto(o);
      break;
    case azione::ruota:
      Modi::ruota(o, m);
      break;
    case azione::stira:
      Modi::stira(o, m);
      break;
    case azione::copia: {
      Classe nuovo = Modi::copia_di(o);
      per_ogni_punto(nuovo, [&](double& x, double& y) { m.sposta(x, y); });
      Modi::a_posto(nuovo);
      aggiungi(std::move(nuovo));
      break;
    }
    case azione::specchio: {
      Classe nuovo = Modi::copia_di(o);
      const specchio asse(m.x1, m.y1, m.x2, m.y2);
      per_ogni_punto(nuovo, [&](double& x, double& y) { asse.rifletti(x, y); });
      Modi::riflesso(nuovo);
      aggiungi(std::move(nuovo));
      break;
    }
    case azione::nessuna:
      break;
  }
}

// The objects that were there at the start, in order; the copies that come behind them are not reached.
template <class Classe, class Modi>
void passata(distipo& doc, int n, int& contatore) {
  modifica_in_corso m(doc, n);
  auto& oggetti = collezione_di<Classe>(doc.dis);
  const std::size_t numero = oggetti.numero();
  for (std::size_t i = 1; i <= numero; ++i) {
    Classe& o = oggetti(i);
    if (o.stato != stato_selezionato) continue;
    contatore = 1;
    applica<Modi>(doc.dis, o, m);
  }
}

}  // namespace trelvo
