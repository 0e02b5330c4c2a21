// A table of what the big drawings cost, in processor time, beside what is aimed at and what a plain walk over all
// objects costs.

#include <malloc.h>
#include <unistd.h>

#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>

#include "commands/deselezione.h"
#include "commands/puntatore.h"
#include "commands/selezione_modo.h"
#include "commands/zoom.h"
#include "disegno_grande.h"
#include "files/dis_documento.h"
#include "platform/qt/font_service_qt.h"
#include "programma_bench.h"
#include "view/aggancio.h"
#include "view/candidati.h"
#include "view/redraw.h"
#include "view/selezione.h"

namespace trelvo {
namespace {

constexpr int milione = 1000000;

double secondi() {
  timespec t{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + 1e-9 * static_cast<double>(t.tv_nsec);
}

double durata(const std::function<void()>& azione) {
  const double inizio = secondi();
  azione();
  return secondi() - inizio;
}

// The middle one of several.
double mediana(int volte, const std::function<double()>& misura) {
  std::vector<double> tutte;
  for (int i = 0; i < volte; ++i) tutte.push_back(misura());
  std::nth_element(tutte.begin(), tutte.begin() + volte / 2, tutte.end());
  return tutte[static_cast<std::size_t>(volte / 2)];
}

// Resident memory of the process.
double megabyte() {
  malloc_trim(0);
  std::ifstream f("/proc/self/statm");
  double totale = 0;
  double residenti = 0;
  f >> totale >> residenti;
  return residenti * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

class desktop_con_lettere : public FakeDesktop {
 public:
  FontService& fonts() override { return lettere_; }

 private:
  FontServiceQt lettere_;
};

// A program with a drawing, all of it in view.
struct banco {
  desktop_con_lettere desktop;
  trelvobas bas{desktop, cartella_bench()};
  int numero;

  explicit banco(int quanti) : numero(quanti) {
    desktop.client = finestra_bench;
    prepara(bas);
    Main(bas, "");
    nuovodisegno(bas);
  }
  // Small objects, each as large as the room that it has, or objects of twenty pixels when all are in view.
  banco(int quanti, bool solo_linee, bool venti_pixel) : banco(quanti) {
    constexpr double pixel = 1200;
    riempi(doc(), quanti, solo_linee, venti_pixel ? 20 / pixel * sheet().larghezza / passo_oggetti : 1);
    tutto_in_vista();
  }
  distipo& doc() { return *bas.attivo(); }
  foglio sheet() const { return foglio_per(numero); }
  void tutto_in_vista() { selzoom(doc(), 0, 0, sheet().larghezza, sheet().altezza); }
  // About the middle of the sheet.
  void in_vista(double oggetti) {
    const double lato = passo_oggetti * std::sqrt(oggetti / 6);
    const double x = sheet().larghezza / 2;
    const double y = sheet().altezza / 2;
    selzoom(doc(), x, y, x + 3 * lato, y + 2 * lato);
  }
};

// ---- what is measured, each in a bench of its own

double ridisegno(banco& b) {
  return mediana(7, [&] { return durata([&] { redraw(b.doc()); }); });
}

double ridisegno_mille(banco& b) {
  b.in_vista(1000);
  return ridisegno(b);
}

constexpr int prove = 50;

// A point every time elsewhere.
vertice punto(const banco& b, int i) {
  const foglio f = b.sheet();
  return {f.larghezza * ((i * 37 + 11) % prove) / prove, f.altezza * ((i * 23 + 7) % prove) / prove};
}

double aggancio(banco& b, int filtro, bool colpito) {
  b.in_vista(1000);
  b.doc().filtro.filtroattivo = filtro;
  int i = 0;
  return mediana(prove, [&] {
    vertice p = punto(b, ++i);
    if (colpito) {
      const auto& linee = std::as_const(b.doc().dis.collLinee);
      const Linea& o = linee(1 + static_cast<std::size_t>(i) * 7919 % linee.numero());
      p = {(o.Xi + o.Xf) / 2, (o.Yi + o.Yf) / 2};
    }
    return durata([&] { selezoggettifiltri(b.doc(), p.x, p.y); });
  });
}

double scelta(banco& b, const std::function<void(const vertice&)>& scegli) {
  b.in_vista(1000);
  b.doc().cmd.corrente().tipo("Sposta");
  int i = 0;
  const double mezzo = mediana(prove, [&] {
    const vertice p = punto(b, ++i);
    const double tempo = durata([&] { scegli(p); });
    deseleziona(b.doc().dis, true);
    return tempo;
  });
  b.doc().cmd.corrente().tipo("");
  return mezzo;
}

double scelta_punto(banco& b) {
  return scelta(b, [&](const vertice& p) { selezionaoggetti(b.doc(), p.x, p.y); });
}

using finestra_di_scelta = void (*)(distipo&, double&, double&, double&, double&);

// A window of a hundred objects.
double scelta_finestra(banco& b, finestra_di_scelta seleziona) {
  return scelta(b, [&](const vertice& p) {
    double x1 = p.x;
    double y1 = p.y;
    double x2 = p.x + 10 * passo_oggetti;
    double y2 = p.y + 10 * passo_oggetti;
    seleziona(b.doc(), x1, y1, x2, y2);
  });
}

// A tenth of the objects moved by the pointer, all in view.
double trascinamento(banco& b) {
  distipo& doc = b.doc();
  reccomando& r = doc.cmd.corrente();
  r.tipo("Sposta");
  doc.cmd.modoselez = modo_oggetto;
  double x1 = 0;
  double y1 = 0;
  double x2 = b.sheet().larghezza;
  double y2 = b.sheet().altezza / 10;
  selezinters(doc, x1, y1, x2, y2);
  doc.cmd.passo = 3;
  doc.surface.set_AutoRedraw(false);
  int i = 0;
  const double mezzo = mediana(9, [&] {
    const vertice p = punto(b, ++i);
    const auto scala = doc.vista.rapscala;
    return durata([&] { Form_MouseMove(doc, static_cast<float>(p.x * scala), static_cast<float>(p.y * scala)); });
  });
  doc.surface.set_AutoRedraw(true);
  doc.cmd.passo = 0;
  r.tipo("");
  deseleziona(doc.dis, true);
  return mezzo;
}

// The places follow an edit at the next question.
double dopo_una_modifica(banco& b, int parte) {
  collezione<Linea>& linee = b.doc().dis.collLinee;
  ricerca<Linea>::colloca(b.doc());
  int giro = 0;
  return mediana(5, [&] {
    const std::size_t cambiate = linee.numero() / static_cast<std::size_t>(parte) + 1;
    for (std::size_t i = 0; i < cambiate; ++i) {
      Linea& o = linee(1 + (i * 7919 + static_cast<std::size_t>(giro)) % linee.numero());
      o.Xi += 1000;
      o.Xf += 1000;
    }
    ++giro;
    return durata([&] { ricerca<Linea>::colloca(b.doc()); });
  });
}

std::string file_di_linee(int numero) { return cartella_bench() + "/cifre" + std::to_string(numero) + ".DIS"; }

double apertura(int numero) {
  return mediana(3, [&] {
    banco b(numero);
    b.doc().Caption = file_di_linee(numero);
    return durata([&] { leggifile(b.doc()); });
  });
}

double salvataggio(banco& b) {
  b.doc().Caption = file_di_linee(b.numero);
  return mediana(3, [&] { return durata([&] { salvafile(b.doc()); }); });
}

double memoria(int numero) {
  banco b(numero);
  const double prima = megabyte();
  b.doc().Caption = file_di_linee(numero);
  leggifile(b.doc());
  b.in_vista(1000);
  return megabyte() - prima;
}

template <class Classe>
std::size_t memoria_luoghi(const disegno& dis) {
  return collezione_di<Classe>(dis).luoghi().memoria();
}

// ---- the table

constexpr int misure = 4;  // three sizes, and the greatest by plain walks

class tabella {
 public:
  void riga(const char* cosa, const char* unita, double fattore, double scopo, const double (&v)[misure]) const {
    std::printf("%-62s", cosa);
    cifra(scopo < 0 ? scopo : scopo * fattore);
    for (const double x : v) cifra(x < 0 ? x : x * fattore);
    std::printf("  %-3s%s\n", unita, scopo >= 0 && v[2] > scopo ? "  MISSED" : "");
    std::fflush(stdout);
  }
  static void testata() {
    std::printf("%-62s %9s %9s %9s %9s %9s\n", "Processor time, one core", "aim", "10,000", "100,000", "1,000,000",
                "plain 1M");
  }

 private:
  static void cifra(double v) {
    if (v < 0) {
      std::printf(" %9s", "-");
    } else {
      std::printf(v < 0.1 ? " %9.4f" : v < 10 ? " %9.3f" : " %9.1f", v);
    }
  }
};

constexpr int grandezze[] = {10000, 100000, milione};
constexpr double niente = -1;

struct riga_misurata {
  const char* cosa;
  double scopo;
  std::function<double(banco&)> misura;
};

// Each row on drawings of all sizes, and on the greatest by plain walks.
void misura_righe(const tabella& t, const std::vector<riga_misurata>& righe, bool solo_linee, bool venti_pixel) {
  std::vector<std::array<double, misure>> esiti(righe.size());
  for (int g = 0; g < 3; ++g) {
    banco b(grandezze[g], solo_linee, venti_pixel);
    for (std::size_t i = 0; i < righe.size(); ++i) {
      b.tutto_in_vista();
      esiti[i][static_cast<std::size_t>(g)] = righe[i].misura(b);
    }
    if (grandezze[g] < milione) continue;
    b.doc().dis.con_luoghi = false;
    for (std::size_t i = 0; i < righe.size(); ++i) {
      b.tutto_in_vista();
      esiti[i][3] = righe[i].misura(b);
    }
  }
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const auto& e = esiti[i];
    t.riga(righe[i].cosa, "ms", 1e3, righe[i].scopo, {e[0], e[1], e[2], e[3]});
  }
}

void file_e_memoria(const tabella& t) {
  double salva[misure] = {niente, niente, niente, niente};
  double apri[misure] = {niente, niente, niente, niente};
  double occupa[misure] = {niente, niente, niente, niente};
  for (int g = 0; g < 3; ++g) {
    {
      banco b(grandezze[g], true, true);
      salva[g] = salvataggio(b);
    }
    apri[g] = apertura(grandezze[g]);
    occupa[g] = memoria(grandezze[g]);
  }
  t.riga("Open a .DIS of lines, to the painted picture", "ms", 1e3, 0.4, apri);
  t.riga("Save it", "ms", 1e3, 0.4, salva);
  t.riga("Memory of the lines, places included", "MB", 1, 150, occupa);
}

// ---- drawings that are hard on the places

struct caso_peggiore {
  const char* cosa;
  double scopo;
  void (*altera)(banco&);
  std::function<double(banco&)> misura;
};

void un_punto(banco& b) {
  for (Linea& o : b.doc().dis.collLinee) o.Xi = o.Yi = o.Xf = o.Yf = 50;
}

void una_grande(banco& b) {
  Linea o;
  o.Xf = b.sheet().larghezza;
  o.Yf = b.sheet().altezza;
  b.doc().dis.collLinee.aggiungi(o);
}

// Uprights, out of true by the last digit: the plain tests find such lines at any distance.
void fuori_piombo(banco& b) {
  for (Linea& o : b.doc().dis.collLinee) o.Xf = std::nextafter(o.Xi, o.Xi + 1);
}

// Some hundred thousand pixels wide.
void lunga_spezzata(banco& b) {
  constexpr std::int16_t molti = 32767;
  polilinea o;
  o.vertic(molti);
  for (int i = 1; i <= molti; ++i) {
    o.inser_vert_pol(b.sheet().larghezza * (3.0 * i / molti - 1), b.sheet().altezza * (0.5 + 0.4 * std::sin(i)), i);
  }
  b.doc().dis.collPolilinee.aggiungi(o);
}

double vista_minima(banco& b) {
  const foglio f = b.sheet();
  selzoom(b.doc(), f.larghezza / 2, f.altezza / 2, f.larghezza / 2 + 1e-5, f.altezza / 2 + 1e-5);
  return ridisegno(b);
}

double vista_massima(banco& b) {
  selzoom(b.doc(), -1e9, -1e9, 1e9, 1e9);
  return ridisegno(b);
}

void casi_peggiori(const tabella& t) {
  const auto manca = [](banco& b) { return aggancio(b, 3, false); };
  const auto nessuno = [](banco&) {};
  const caso_peggiore casi[] = {
      {"All lines at one point: snap elsewhere", 0.0002, un_punto, manca},
      {"One line across all others: snap, miss", 0.0002, una_grande, manca},
      {"Lines out of true by the last digit: pick", niente, fuori_piombo, scelta_punto},
      {"A polyline of 32,767 vertices, 100,000 pixels wide: snap", 0.002, lunga_spezzata, manca},
      {"The same: redraw with 1,000 lines in view", 0.005, lunga_spezzata, ridisegno_mille},
      {"Redraw of a view of a hundred thousandth of a unit", 0.002, nessuno, vista_minima},
      {"Redraw of a view in which all lines are one pixel", 0.05, nessuno, vista_massima},
  };
  for (const caso_peggiore& c : casi) {
    banco b(milione, true, false);
    c.altera(b);
    double v[misure] = {niente, niente, niente, niente};
    for (const bool con_luoghi : {true, false}) {
      b.doc().dis.con_luoghi = con_luoghi;
      v[con_luoghi ? 2 : 3] = c.misura(b);
    }
    t.riga(c.cosa, "ms", 1e3, c.scopo, v);
  }
}

// Memory and first making of the places.
void luoghi(const tabella& t) {
  double parte[misure] = {niente, niente, niente, niente};
  double tempo[misure] = {niente, niente, niente, niente};
  for (int g = 0; g < 3; ++g) {
    banco b(grandezze[g]);
    riempi(b.doc(), grandezze[g], true);
    tempo[g] = durata([&] { ricerca<Linea>::colloca(b.doc()); });
    parte[g] =
        static_cast<double>(memoria_luoghi<Linea>(b.doc().dis)) / (sizeof(Linea) * static_cast<double>(grandezze[g]));
  }
  t.riga("Making the places of lines, once", "ms", 1e3, niente, tempo);
  t.riga("Memory of the places, to that of the lines", "%", 1e2, 0.2, parte);
}

void stampa_tabella() {
  const tabella t;
  tabella::testata();
  file_e_memoria(t);
  luoghi(t);
  misura_righe(t, {{"Redraw, all in view, lines of 20 pixels", 0.05, ridisegno}}, true, true);
  misura_righe(t, {{"Redraw, all in view, all classes, objects of 20 pixels", 0.3, ridisegno}}, false, true);
  misura_righe(
      t,
      {{"Redraw, all in view, all classes, small objects", 0.3, ridisegno},
       {"Redraw with 1,000 objects in view", 0.002, ridisegno_mille},
       {"Snap to ends, hit", 0.0002, [](banco& b) { return aggancio(b, 3, true); }},
       {"Snap to ends, miss", 0.0002, [](banco& b) { return aggancio(b, 3, false); }},
       {"Snap to centres, miss", 0.0002, [](banco& b) { return aggancio(b, 6, false); }},
       {"Pick", 0.001, scelta_punto},
       {"Window selection of 100 objects, painting included", 0.001,
        [](banco& b) { return scelta_finestra(b, selezfin); }},
       {"Crossing selection of 100 objects, painting included", 0.001,
        [](banco& b) { return scelta_finestra(b, selezinters); }},
       {"Stretch selection of 100 objects, painting included", 0.001,
        [](banco& b) { return scelta_finestra(b, selezintersStira); }},
       {"Move of the pointer with a tenth of all objects being moved", 0.02, trascinamento},
       {"Places after an edit of one line", niente, [](banco& b) { return dopo_una_modifica(b, milione); }},
       {"Places after an edit of a tenth of the lines", niente, [](banco& b) { return dopo_una_modifica(b, 10); }}},
      false, false);
  std::printf("Hard cases, on lines\n");
  casi_peggiori(t);
}

}  // namespace
}  // namespace trelvo

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  trelvo::stampa_tabella();
}
