#include "files/dxf_scrittura.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>
#include <vector>

#include "files/dxf_numeri.h"
#include "geometry/misure.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr std::array<int, numero_colori> numeri_dxf{0, 166, 3, 51, 1, 6, 3, 9, 8, 5, 2, 4, 1, 230, 2, 0};

constexpr std::size_t lunghezza_blocco = std::size_t{1} << 18;
// Room that a piece of an entity never exceeds, texts apart.
constexpr std::size_t margine = 256;
constexpr float punti_per_unita = 25;  // of a text's size

using consegna = std::function<void(std::span<const std::byte>)>;

class scrittore {
 public:
  scrittore(double ymaxdis, const consegna& scarica)
      : ymaxdis_(ymaxdis), scarica_(scarica), blocco_(lunghezza_blocco) {}

  void inizio() { metti("0\nSECTION\n2\nENTITIES\n"); }
  // These two group codes are written as numbers, with a blank on both sides.
  void fine() {
    metti(" 0 \nENDSEC\n 0 \nEOF\n");
    svuota();
    if (!finiti_) throw RuntimeError(error_overflow);
  }

  void entita(const Linea& o) {
    testa("0\nLINE\n8\n0\n62\n", o.colorelinea);
    punto(o.Xi, o.Yi);
    valore("11\n", o.Xf);
    valore("21\n", ymaxdis_ - o.Yf);
  }

  void entita(const Cerchio& o) {
    testa("0\nCIRCLE\n8\n0\n62\n", o.colcont);
    punto(o.Xcentro, o.Ycentro);
    valore("40\n", o.raggio);
  }

  void entita(const testo& o) {
    const double altezza = numeric_prefix(number_text(o.dimens_testo)) / punti_per_unita;
    testa("0\nText\n8\n0\n62\n", o.colore_testo);
    valore("10\n", o.pos_testox);
    valore("20\n", ymaxdis_ - o.pos_testoy - altezza);
    riga("40\n", number_text_trimmed(o.dimens_testo / punti_per_unita));
    riga("1\n", parole(o.stringa_testo));
    valore("50\n", o.ang_testo());
  }

  void entita(const polilinea& o) { spezzata(o, ""); }
  void entita(const superficie& o) { spezzata(o, "70\n1\n"); }
  void entita(const Rettangolo& o) { spezzata(o, "70\n1\n"); }

 private:
  // A value takes one line, in the code page.
  static std::string parole(const std::string& stringa) {
    std::string byte = to_code_page(right_trimmed(stringa));
    std::replace_if(
        byte.begin(), byte.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return byte;
  }

  template <class Classe>
  void spezzata(const Classe& o, std::string_view chiusura) {
    testa("0\nPolyline\n8\n0\n62\n", o.colcont);
    metti("66\n1\n");
    metti(chiusura);
    metti("0\n");
    for (const vertice& v : o.vertici.tutti()) {
      fa_posto();
      metti("VERTEX\n8\n0\n");
      punto(v.x, v.y);
      metti("0\n");
    }
    metti("SEQEND\n8\n0\n");
  }

  void testa(std::string_view inizio, Color colore) {
    fa_posto();
    metti(inizio);
    dove_ = std::to_chars(dove_, dove_ + margine, SELCOLxDXF(colore)).ptr;
    *dove_++ = '\n';
  }
  void punto(double x, double y) {
    valore("10\n", x);
    valore("20\n", ymaxdis_ - y);
  }
  void valore(std::string_view codice, double numero) {
    finiti_ = finiti_ && std::isfinite(numero);
    metti(codice);
    dove_ = scrivi_numero(dove_, numero);
    *dove_++ = '\n';
  }
  void riga(std::string_view codice, std::string_view testo) {
    metti(codice);
    if (testo.size() + margine > spazio()) {
      svuota();
      if (testo.size() + margine > spazio()) {
        scarica_(std::as_bytes(std::span(testo)));
        testo = "";
      }
    }
    metti(testo);
    *dove_++ = '\n';
  }

  void metti(std::string_view testo) {
    std::memcpy(dove_, testo.data(), testo.size());
    dove_ += testo.size();
  }
  std::size_t spazio() const { return static_cast<std::size_t>(blocco_.data() + blocco_.size() - dove_); }
  void fa_posto() {
    if (spazio() < 2 * margine) svuota();
  }
  void svuota() {
    const std::span pieno(blocco_.data(), dove_);
    dove_ = blocco_.data();
    scarica_(std::as_bytes(pieno));
  }

  double ymaxdis_;
  const consegna& scarica_;
  std::vector<char> blocco_;
  char* dove_ = blocco_.data();
  bool finiti_ = true;  // all numbers so far
};

void aggiorna_raggio(Cerchio& o) {
  const misure_cerchio m = misure_di_cerchio(o.Xcentro, o.Ycentro, o.Xpunto, o.YPunto);
  o.raggio = m.raggio;
  o.perimet = m.perimet;
  o.supf = m.supf;
}

template <class Oggetto>
void aggiorna_raggio(const Oggetto& /*o*/) {}

}  // namespace

int SELCOLxDXF(Color colore) {
  const int indice = indice_tavolozza(colore);
  return indice < 0 ? 0 : numeri_dxf[static_cast<std::size_t>(indice)];
}

void scrivi_dxf(disegno& dis, double ymaxdis, const std::function<void(std::span<const std::byte>)>& scarica) {
  scrittore s(ymaxdis, scarica);
  s.inizio();
  visita<Linea, Cerchio, testo, polilinea, superficie, Rettangolo>(dis, [&](auto& oggetto) {
    if (oggetto.stato == stato_cancellato) return;
    aggiorna_raggio(oggetto);
    s.entita(oggetto);
  });
  s.fine();
}

}  // namespace trelvo
