#include "app/riga_comando.h"

#include <cmath>

#include "commands/motore.h"
#include "commands/prompt.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "view/mappa.h"

namespace trelvo {

namespace {

double ascissa(const std::string& testo) { return numeric_prefix(testo.substr(0, testo.find(','))); }

double ordinata(const std::string& testo) {
  const std::size_t virgola = testo.find(',');
  return numeric_prefix(virgola == std::string::npos ? testo : testo.substr(virgola + 1));
}

// The scale as the frame shows it: its only copy of it.
double rapscalatesto(const trelvobas& bas) { return numeric_prefix(bas.frmMain.Label3.Caption.get()); }

void clic_scritto(distipo& doc, double x, double y) {
  const double scala = rapscalatesto(doc.bas);
  float X = to_float(x * scala);
  float Y = to_float(y * scala);
  clicksin(doc, X, Y);
}

void invio_Text1(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  // Written back it would be no number any more.
  if (!std::isfinite(fx1(doc.bas)) || !std::isfinite(fy1(doc.bas))) throw RuntimeError(error_overflow);
  f.Text1.Text = coppia(fx1(doc.bas), fy1(doc.bas));
  if (f.Label1.Caption.get() == "Comando: ") {
    scrivilabel1(doc);
    scrivilabel2(doc);
    f.Text1.Text = "";
    f.Text2.Text = "";
    return;
  }
  clic_scritto(doc, fx1(doc.bas), fy1(doc.bas));
  if (f.Text2.Enabled && f.Picture2.Visible) doc.bas.desktop.set_focus(&f.Text2);
}

void invio_Text2(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  const std::string& testo = f.Text2.Text;
  const bool punto = !testo.empty() && f.Label2.Caption.get() != "Conferma Cancella" && testo != f.Text1.Text.get();
  if (!punto) {
    clickdes(doc);
    return;
  }
  clic_scritto(doc, fx2(doc.bas), fy2(doc.bas));
  if (f.Text2.Text.get().find(',') == std::string::npos) return;
  // A measure stands in the first box, to be read.
  if (!f.Text1.Locked) {
    f.Text1.Text = coppia(fx2(doc.bas), fy2(doc.bas));
    spegni_Text1(doc);
  }
  f.Text2.Text = "";
}

}  // namespace

double fx1(const trelvobas& bas) { return ascissa(bas.frmMain.Text1.Text); }
double fy1(const trelvobas& bas) { return ordinata(bas.frmMain.Text1.Text); }
double fx2(const trelvobas& bas) { return ascissa(bas.frmMain.Text2.Text); }
double fy2(const trelvobas& bas) { return ordinata(bas.frmMain.Text2.Text); }

void Text1_KeyPress(trelvobas& bas, int& KeyAscii) {
  const int tasto = KeyAscii;
  if (tasto == key_enter) KeyAscii = 0;
  distipo* doc = bas.attivo();
  if (doc == nullptr) return;
  if (tasto == key_enter) invio_Text1(*doc);
  if (tasto == key_escape) gestastiera(*doc, tasto);
}

void Text2_KeyPress(trelvobas& bas, int& KeyAscii) {
  const int tasto = KeyAscii;
  if (tasto == key_enter) KeyAscii = 0;
  distipo* doc = bas.attivo();
  if (doc == nullptr) return;
  if (tasto == key_enter) invio_Text2(*doc);
  if (tasto == key_escape) gestastiera(*doc, tasto);
}

}  // namespace trelvo
