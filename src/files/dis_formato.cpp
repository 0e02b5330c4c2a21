#include "files/dis_formato.h"

#include <algorithm>
#include <cmath>

#include "files/valori.h"
#include "platform/text.h"

namespace trelvo {

namespace {

// From 1.
enum slot : std::size_t {
  slot_xminvis = 1,
  slot_yminvis,
  slot_larghezzavis,
  slot_altezzavis,
  slot_windowstate,
  slot_coloresfondo,
  slot_colorepuntatore,
  slot_statostep,
  slot_passostep,
  slot_statogriglia,
  slot_passogriglia,
};

constexpr std::size_t inizio(slot n) { return (n - 1) * lunghezza_slot; }

class letturatestata {
 public:
  letturatestata(std::span<const std::byte> dati, errorerimandato& errore) : letti_(dati.size()), errore_(errore) {
    std::copy_n(dati.begin(), std::min(dati.size(), byte_.size()), byte_.begin());
  }

  float reale(slot n) const { return prendi<float>(byte_.data() + inizio(n)); }

  void passo(slot n, float& passo) {
    const float letto = reale(n);
    if (std::isfinite(letto)) {
      passo = letto;
    } else {
      errore_.annota(RuntimeError(error_overflow));
    }
  }

  template <class Valore, class Lettura>
  void tipizzato(slot n, Valore& valore, Lettura&& lettura) {
    if (inizio(n) >= letti_) {
      valore = {};
      return;
    }
    errore_.prova([&] { valore = lettura(prendi_tipizzato(std::span(byte_).subspan(inizio(n), lunghezza_slot))); });
  }

 private:
  std::array<std::byte, lunghezza_testata> byte_{};
  std::size_t letti_;
  errorerimandato& errore_;
};

}  // namespace

reccomando immagine(const std::byte* record) {
  reccomando r;
  r.tipo(from_code_page({reinterpret_cast<const char*>(record + posto_tipo), lunghezza_tipo}));
  const auto punto = [record](std::size_t k, double& x, double& y) {
    x = prendi<double>(record + posto_punto[k]);
    y = prendi<double>(record + posto_punto[k] + sizeof(double));
  };
  punto(1, r.x1, r.y1);
  punto(2, r.x2, r.y2);
  punto(3, r.x3, r.y3);
  r.nvertici = prendi<std::int16_t>(record + posto_nvertici);
  return r;
}

std::array<std::byte, lunghezza_testata> codifica(const testatadis& testata) {
  std::array<std::byte, lunghezza_testata> byte{};
  const auto reale = [&](slot n, float valore) { metti<float>(byte.data() + inizio(n), valore); };
  const auto valore = [&](slot n, const valoretipizzato& v) {
    metti_tipizzato(std::span(byte).subspan(inizio(n), lunghezza_slot), v);
  };
  reale(slot_xminvis, testata.xminvis);
  reale(slot_yminvis, testata.yminvis);
  reale(slot_larghezzavis, testata.larghezzavis);
  reale(slot_altezzavis, testata.altezzavis);
  valore(slot_windowstate, static_cast<std::int16_t>(testata.windowstate));
  valore(slot_coloresfondo, tipizzato(testata.coloresfondo));
  valore(slot_colorepuntatore, tipizzato(testata.colorepuntatore));
  valore(slot_statostep, testata.statostep);
  reale(slot_passostep, testata.passostep);
  valore(slot_statogriglia, testata.statogriglia);
  reale(slot_passogriglia, testata.passogriglia);
  return byte;
}

void decodifica(std::span<const std::byte> dati, testatadis& testata, errorerimandato& errore) {
  letturatestata l(dati, errore);
  testata.xminvis = l.reale(slot_xminvis);
  testata.yminvis = l.reale(slot_yminvis);
  testata.larghezzavis = l.reale(slot_larghezzavis);
  testata.altezzavis = l.reale(slot_altezzavis);
  l.tipizzato(slot_windowstate, testata.windowstate, intero_tipizzato);
  l.tipizzato(slot_coloresfondo, testata.coloresfondo, colore_tipizzato);
  l.tipizzato(slot_colorepuntatore, testata.colorepuntatore, colore_tipizzato);
  l.tipizzato(slot_statostep, testata.statostep, testo_tipizzato);
  l.passo(slot_passostep, testata.passostep);
  l.tipizzato(slot_statogriglia, testata.statogriglia, testo_tipizzato);
  l.passo(slot_passogriglia, testata.passogriglia);
}

}  // namespace trelvo
