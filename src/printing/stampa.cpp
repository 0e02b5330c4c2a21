#include "printing/stampa.h"

#include <exception>

#include "commands/comandi_modifica.h"
#include "commands/comando.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "platform/numbers.h"
#include "printing/carta.h"
#include "printing/foglio.h"
#include "printing/spesslin.h"
#include "printing/su_carta.h"
#include "view/selezione.h"

namespace trelvo {

namespace {

const char* const comando_area = "Selstamp";

// More objects than these take long enough for a progress window.
constexpr int oggetti_lunghi = 20000;
constexpr int passo_avanzamento = 1000;

// ---- the area to print, picked in the drawing

void torna_alla_stampa(distipo& doc) {
  doc.cmd.passo = 0;
  doc.cmd.corrente().tipo("");
  doc.bas.Geststamp.WindowState = window_normal;
  anteprimastampa(doc);
}

void prendi_area(distipo& doc) {
  const reccomando& r = doc.cmd.corrente();
  double x1 = r.x1;
  double y1 = r.y1;
  double x2 = r.x2;
  double y2 = r.y2;
  inizializ_stampare(doc.dis);
  selezinters(doc, x1, y1, x2, y2);
  GeststampForm& f = doc.bas.Geststamp;
  f.Text2.Text = regional_text(x1, doc.bas.desktop.regional());
  f.Text3.Text = regional_text(y1, doc.bas.desktop.regional());
  doc.Shape1.Visible = false;
}

void clic_area(distipo& doc, float& X, float& Y) {
  const double a = X / doc.vista.rapscala;
  const double b = Y / doc.vista.rapscala;
  if (doc.cmd.passo == 0) {
    primo_angolo(doc, a, b);
    return;
  }
  reccomando& r = doc.cmd.corrente();
  r.x2 = a;
  r.y2 = b;
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  prendi_area(doc);
  torna_alla_stampa(doc);
}

void lascia_area(distipo& doc) {
  if (doc.cmd.passo != 0) doc.Shape1.Visible = false;
  torna_alla_stampa(doc);
}

comando riga_area() {
  comando c;
  c.nome = comando_area;
  c.tipo = genere::areastampa;
  c.primoprompt = [](distipo& doc) { doc.bas.frmMain.Label1.Caption = " Selez.Finestra - Primo Punto:"; };
  c.clic = clic_area;
  c.destro_altrimenti = lascia_area;
  c.anteprima = anteprima_selezione;
  c.aggancio = [](const distipo&) { return true; };
  c.riprendi = [](distipo& doc) { scrivilabel1(doc); };
  return c;
}

// ---- opening

// The crossing selection marks what takes part for as long as the command has this name.
void segna_vista(distipo& doc, double& x1, double& y1, double& x2, double& y2) {
  reccomando& r = doc.cmd.corrente();
  r.tipo(comando_area);
  r.x1 = x1;
  r.y1 = y1;
  r.x2 = x2;
  r.y2 = y2;
  try {
    selezinters(doc, x1, y1, x2, y2);
  } catch (...) {
    r.tipo("");
    throw;
  }
  r.tipo("");
}

// ---- paper

// A sheet that is not finished is dropped.
class foglio_in_corso {
 public:
  explicit foglio_in_corso(Printer& stampante) : stampante_(stampante) {}
  foglio_in_corso(const foglio_in_corso&) = delete;
  foglio_in_corso& operator=(const foglio_in_corso&) = delete;
  ~foglio_in_corso() { stampante_.KillDoc(); }

 private:
  Printer& stampante_;
};

int numero_da_stampare(const disegno& dis) {
  int numero = 0;
  visita<Cerchio, Arco, Rettangolo, superficie, testo, polilinea, Linea>(
      dis, [&](const auto& o) { numero += o.stampare == da_stampare ? 1 : 0; });
  return numero;
}

void stampa_oggetti(distipo& doc, const std::function<void(int)>& avanza) {
  int stampati = 0;
  visita<Cerchio, Arco, Rettangolo, superficie, testo, polilinea, Linea>(std::as_const(doc.dis), [&](const auto& o) {
    if (o.stampare != da_stampare) return;
    su_carta(doc, o);
    if (++stampati % passo_avanzamento == 0 && avanza) avanza(stampati);
  });
}

// What goes wrong behind the progress window is told by the event that prints, as for a short print.
void stampa_con_avanzamento(distipo& doc, int numero) {
  trelvobas& bas = doc.bas;
  barprogForm& b = bas.barprog;
  std::exception_ptr errore;
  b.Caption = "Trelvo -        Attendere . . . . Stampa";
  b.lavoro = [&doc, &bas, &b, &errore, numero] {
    try {
      stampa_oggetti(doc, [&](int stampati) {
        b.ProgressBar1.Value = b.ProgressBar1.Max * static_cast<float>(stampati) / static_cast<float>(numero);
        bas.desktop.process_events();
      });
      bas.desktop.printer().EndDoc();
    } catch (...) {
      errore = std::current_exception();
    }
  };
  bas.desktop.show_modal(b);
  if (errore) std::rethrow_exception(errore);
}

// Only what has the mark is written to.
template <class Classe>
void azzera_stampare(disegno& dis) {
  collezione<Classe>& coll = collezione_di<Classe>(dis);
  std::size_t posizione = 0;
  for (const Classe& o : std::as_const(coll)) {
    ++posizione;
    if (o.stampare != 0) coll(posizione).stampare = 0;
  }
}

// ---- dialog

void Command1_Click(trelvobas& bas) {
  if (bas.attivo() != nullptr && !stampa(*bas.attivo())) return;
  bas.Geststamp.unload();
}

bool sceglie_area(const distipo& doc) {
  return doc.cmd.comando() == comando_area || doc.cmd.comandosospeso.tipo() == comando_area;
}

void Form_Unload(distipo& doc) {
  // A zoom in the midst of the picking has nothing to go back to.
  if (doc.cmd.comandosospeso.tipo() == comando_area) doc.cmd.comandosospeso = {};
  annullacomando(doc, 2);
}

}  // namespace

void inizializ_stampare(disegno& dis) {
  azzera_stampare<superficie>(dis);
  azzera_stampare<Rettangolo>(dis);
  azzera_stampare<Linea>(dis);
  azzera_stampare<polilinea>(dis);
  azzera_stampare<testo>(dis);
  azzera_stampare<Arco>(dis);
  azzera_stampare<Cerchio>(dis);
}

void selfinstamp(distipo& doc) {
  doc.cmd.corrente().tipo(comando_area);
  scrivilabel1(doc);
}

void richiama_stampa(trelvobas& bas) {
  distipo* doc = bas.attivo();
  if (bas.Geststamp.WindowState != window_minimised || doc == nullptr || sceglie_area(*doc)) return;
  bas.Geststamp.WindowState = window_normal;
  agganteprima(bas);
}

void apri_stampa(distipo& doc) {
  trelvobas& bas = doc.bas;
  GeststampForm& f = bas.Geststamp;
  if (f.loaded()) return;
  abbandona_sospeso(doc);
  if (!doc.cmd.comando().empty()) annullacomando(doc, doc.cmd.livello);
  {
    const PointerGuard attesa(bas.desktop, pointer_hourglass);
    inizializ_stampare(doc.dis);
    const Surface& s = doc.surface;
    const double scala = doc.vista.rapscala;
    const auto sinistra = static_cast<float>(s.ScaleLeft / scala);
    const auto alto = static_cast<float>(s.ScaleTop / scala);
    double x1 = sinistra;
    double y1 = alto;
    double x2 = static_cast<float>(sinistra + s.ScaleWidth / scala);
    double y2 = static_cast<float>(alto + s.ScaleHeight / scala);
    segna_vista(doc, x1, y1, x2, y2);
    f.Text2.Text = number_text_trimmed(static_cast<float>(x1));
    f.Text3.Text = number_text_trimmed(static_cast<float>(y1));
    f.Caption = "Gestione stampa   -  File: \"" + doc.Caption.get() + "\"";
  }
  bas.desktop.show_modal(f);
}

bool stampa(distipo& doc) {
  Printer& stampante = doc.bas.desktop.printer();
  stampante.set_ScaleMode(scale_millimetres);
  stampante.FillStyle = 1;
  stampante.FontTransparent = true;
  leggi_caselle(doc.bas, doc.stampa.scalastampa, doc.stampa.origstampax, doc.stampa.origstampay);
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  if (!stampante.start()) return false;
  const foglio_in_corso foglio(stampante);
  const int numero = numero_da_stampare(doc.dis);
  if (numero > oggetti_lunghi) {
    stampa_con_avanzamento(doc, numero);
  } else {
    stampa_oggetti(doc, {});
    stampante.EndDoc();
  }
  return true;
}

void prepara_stampa(trelvobas& bas) {
  GeststampForm& f = bas.Geststamp;
  f.Load = [&bas] { selcarta(bas); };
  f.Shown = [&bas] {
    if (bas.attivo() != nullptr) anteprimastampa(*bas.attivo());
  };
  f.Text1.Text.on_change([&bas, &f] {
    if (f.loaded()) agganteprima(bas);
  });
  const auto origine = [&bas, &f] {
    // The corner of a picked window comes while the dialog stands aside.
    if (f.loaded() && f.WindowState == window_normal) agganteprima(bas);
  };
  f.Text2.Text.on_change(origine);
  f.Text3.Text.on_change(origine);
  f.Command1.Click = [&bas] { Command1_Click(bas); };
  f.Command2.Click = [&f] { f.unload(); };
  f.Command4.Click = [&bas, &f] {
    if (bas.attivo() == nullptr) return;
    f.WindowState = window_minimised;
    selfinstamp(*bas.attivo());
  };
  f.Command5.Click = [&bas] {
    bas.desktop.show_modal(bas.Spesslin);
    agganteprima(bas);
  };
  f.Unloaded = [&bas, &f] {
    if (bas.attivo() != nullptr) Form_Unload(*bas.attivo());
    f.Caption = "Gestione Stampa";
    f.WindowState = window_normal;
    f.Text1.Text = "1";
  };
  prepara_Spesslin(bas);
  bas.tabella.righe.push_back(std::make_shared<const comando>(riga_area()));
}

}  // namespace trelvo
