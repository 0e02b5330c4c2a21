#include "printing/foglio.h"

#include <algorithm>
#include <cmath>

#include "model/disegno.h"
#include "platform/numbers.h"
#include "printing/anteprima.h"
#include "printing/carta.h"
#include "printing/stampa.h"

namespace trelvo {

namespace {

constexpr float margine_basso = 13;  // millimetres of the dialog under the sheet
constexpr float margine = 2;
constexpr double ingrandimento = 2;  // of a sheet that fits
constexpr double twip_per_centimetro = 567;
constexpr double millimetri_per_pollice = 25.4;
constexpr double twip_per_pollice = 1440;
constexpr double twip_per_pixel = 15;

// Whole pixels for the picture, whatever the sheet's exact size.
float twip(float millimetri) {
  return static_cast<float>(std::round(millimetri / millimetri_per_pollice * twip_per_pollice / twip_per_pixel) *
                            twip_per_pixel);
}

double finito(double numero) {
  if (!std::isfinite(numero)) throw RuntimeError(error_overflow);
  return numero;
}

double numero_di(const TextBox& casella) { return finito(numeric_prefix(casella.Text.get())); }

void misura_foglio(distipo& doc) {
  const Printer& stampante = doc.bas.desktop.printer();
  const GeststampForm& f = doc.bas.Geststamp;
  statostampa& s = doc.stampa;
  s.larghcarta = stampante.Width() / twip_per_centimetro;
  s.altezcarta = stampante.Height() / twip_per_centimetro;
  s.larghanteprima = f.Picture1.Width;
  s.altezanteprima = f.Picture1.Height;
}

// Preview units to a millimetre of the sheet.
double scala_foglio(const statostampa& s) {
  if (s.larghcarta == s.larghanteprima && s.altezcarta == s.altezanteprima) return 1;
  constexpr double millimetri = 10;  // in a centimetre
  return s.larghanteprima < s.altezanteprima ? s.larghanteprima / s.larghcarta / millimetri
                                             : s.altezanteprima / s.altezcarta / millimetri;
}

}  // namespace

void selcarta(trelvobas& bas) {
  GeststampForm& f = bas.Geststamp;
  Printer& stampante = bas.desktop.printer();
  stampante.set_ScaleMode(scale_millimetres);
  double larghezza = ingrandimento * stampante.ScaleWidth;
  double altezza = ingrandimento * stampante.ScaleHeight;
  double fattore = 1;
  if (larghezza > f.ScaleWidth) fattore = (f.ScaleWidth - margine) / larghezza;
  const float limite = f.ScaleHeight - margine_basso;
  if (altezza > limite) fattore = std::min(fattore, (limite - margine) / altezza);
  larghezza *= fattore;
  altezza *= fattore;
  f.Picture1.Width = static_cast<float>(larghezza);
  f.Picture1.Height = static_cast<float>(altezza);
  f.Picture1.Left = (f.ScaleWidth - f.Picture1.Width) / 2;
  f.Picture1.Top = 1;
  f.Picture2.Width = f.Picture1.Width.get();
  f.Picture2.Height = f.Picture1.Height.get();
  f.Picture2.Left = f.Picture1.Left + 1;
  f.Picture2.Top = f.Picture1.Top + 1;
  f.anteprima.resize(twip(f.Picture1.Width), twip(f.Picture1.Height));
  f.Label4.Caption = stampante.description();
}

void agganteprima(trelvobas& bas) {
  if (bas.attivo() == nullptr || numeric_prefix(bas.Geststamp.Text1.Text.get()) == 0) return;
  const PointerGuard attesa(bas.desktop, pointer_hourglass);
  anteprimastampa(*bas.attivo());
}

void leggi_caselle(const trelvobas& bas, double& scala, double& origine_x, double& origine_y) {
  const GeststampForm& f = bas.Geststamp;
  scala = numero_di(f.Text1);
  origine_x = numero_di(f.Text2);
  origine_y = numero_di(f.Text3);
}

void anteprimastampa(distipo& doc) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  doc.bas.Geststamp.anteprima.Cls();
  misura_foglio(doc);
  double scala = 1;
  leggi_caselle(doc.bas, scala, doc.stampa.origstampax, doc.stampa.origstampay);
  doc.stampa.scalastampa = finito(scala_foglio(doc.stampa) * scala);
  visita<Cerchio, Arco, Rettangolo, superficie, testo, Linea, polilinea>(std::as_const(doc.dis), [&](const auto& o) {
    if (o.stampare == da_stampare) anteprima(doc, o);
  });
}

}  // namespace trelvo
