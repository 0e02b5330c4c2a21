#include "files/ini.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "commands/impostazioni.h"
#include "document/trelvobas.h"
#include "files/accesso_file.h"
#include "files/valori.h"
#include "model/tavolozza.h"

namespace trelvo {

namespace {

constexpr std::size_t lunghezza_slot = 128;
constexpr std::size_t numero_slot = 48;
constexpr std::size_t lunghezza_ini = numero_slot * lunghezza_slot;

// The slots in their order, each by the kind of its value.
template <class Documento, class Slot>
void scorri(Documento& doc, Slot& slot) {
  auto& imp = doc.imp;
  auto& def = doc.bas.def;
  auto& testi = doc.testi;
  slot.reale(imp.passogriglia);
  slot.reale(imp.passostep);
  slot.interruttore(imp.statostep);
  slot.interruttore(imp.statogriglia);
  slot.colore(imp.coloresfondo);
  slot.colore(imp.colorepuntatore);
  slot.colore(imp.colorecontrasto);
  for (auto* numero : {&def.colorelineadef, &def.tipolineadef, &def.spessorelineadef, &def.campituradef,
                       &def.colocampituradef, &def.colcontdef, &def.spescontdef, &def.trattcontdef}) {
    slot.intero(*numero);
  }
  for (std::size_t i = 1; i < doc.barrevis.barra.size(); ++i) slot.barra(doc.barrevis.barra[i]);
  slot.filtro(doc.filtro.filtroattivo);
  slot.interruttore(imp.statoorto);
  slot.intero(imp.bordotesto);
  slot.testo(testi.carattereDef);
  slot.intero(testi.dimensionetestodef);
  slot.intero(testi.boldtestodef);
  slot.intero(testi.corsivotestodef);
  slot.intero(testi.barratotestodef);
  slot.intero(testi.sottolineatotestodef);
  slot.intero(testi.coloretestodef);
  slot.intero(testi.opacotestodef);
  slot.intero(testi.coloreopacotestodef);
  for (float& spessore : doc.bas.spessoristampa) slot.reale(spessore);
}

class slotscritti {
 public:
  void reale(float valore) { metti<float>(prossimo().data(), valore); }
  void interruttore(const std::string& valore) { metti_tipizzato(prossimo(), valore); }
  void colore(const indicecolore& valore) { metti_tipizzato(prossimo(), tipizzato(valore)); }
  void barra(std::int16_t valore) { metti_tipizzato(prossimo(), valore); }
  void filtro(int valore) { metti_tipizzato(prossimo(), static_cast<std::int16_t>(valore)); }
  void testo(const std::string& valore) { metti_testo(prossimo(), valore); }
  template <class Intero>
  void intero(Intero valore) {
    metti<Intero>(prossimo().data(), valore);
  }

  std::span<const std::byte> tutti() const { return byte_; }

 private:
  std::span<std::byte> prossimo() {
    const std::size_t inizio = indice_++ * lunghezza_slot;
    return std::span(byte_).subspan(inizio, lunghezza_slot);
  }

  std::array<std::byte, lunghezza_ini> byte_{};
  std::size_t indice_ = 0;
};

// A slot that holds no value of its kind leaves the variable as it is.
class slotletti {
 public:
  explicit slotletti(std::span<const std::byte> byte) : byte_(byte) {}

  void reale(float& valore) {
    numero(valore, [](float letto) { return std::isfinite(letto); });
  }
  template <class Intero>
  void intero(Intero& valore) {
    numero(valore, [](Intero) { return true; });
  }
  void interruttore(std::string& valore) {
    prendi_se_valido(valore, [](auto slot) {
      std::string letto = testo_tipizzato(prendi_tipizzato(slot));
      if (letto != acceso && letto != spento) throw RuntimeError(error_type);
      return letto;
    });
  }
  void colore(indicecolore& valore) {
    prendi_se_valido(valore, [](auto slot) { return colore_tipizzato(prendi_tipizzato(slot)); });
  }
  void barra(std::int16_t& valore) {
    prendi_se_valido(valore, [](auto slot) { return static_cast<std::int16_t>(uno_di(slot, {0, 1})); });
  }
  void filtro(int& valore) {
    prendi_se_valido(valore, [](auto slot) { return uno_di(slot, {0, 2, 3, 4, 6}); });
  }
  void testo(std::string& valore) { prendi_se_valido(valore, prendi_testo); }

 private:
  static int uno_di(std::span<const std::byte> slot, std::initializer_list<int> ammessi) {
    const int letto = intero_tipizzato(prendi_tipizzato(slot));
    if (std::find(ammessi.begin(), ammessi.end(), letto) == ammessi.end()) throw RuntimeError(error_bad_index);
    return letto;
  }

  template <class Numero, class Prova>
  void numero(Numero& valore, Prova&& ammesso) {
    const auto slot = prossimo();
    if (slot.size() < sizeof(Numero)) return;
    const auto letto = prendi<Numero>(slot.data());
    if (ammesso(letto)) valore = letto;
  }

  template <class Valore, class Lettura>
  void prendi_se_valido(Valore& valore, Lettura&& lettura) {
    const auto slot = prossimo();
    try {
      valore = lettura(slot);
    } catch (const RuntimeError&) {
      return;
    }
  }

  std::span<const std::byte> prossimo() {
    const std::size_t inizio = std::min(indice_++ * lunghezza_slot, byte_.size());
    return byte_.subspan(inizio, std::min(lunghezza_slot, byte_.size() - inizio));
  }

  std::span<const std::byte> byte_;
  std::size_t indice_ = 0;
};

void imposta_iniziali(distipo& doc) {
  doc.imp = impostazioni{};
  doc.barrevis = statobarre{};
  doc.filtro.filtroattivo = 0;
  inizializ_varLinee(doc.bas.def);
  inizializ_varSup(doc.bas.def);
  inizializ_varTesto(doc);
  doc.bas.spessoristampa.fill(0);
}

}  // namespace

void inizializini(distipo& doc) {
  imposta_iniziali(doc);
  salvafileini_dis(doc);
}

void leggifileini_dis(distipo& doc) {
  imposta_iniziali(doc);
  std::vector<std::byte> byte(lunghezza_ini);
  try {
    fileaperto file(doc.bas.fileini, fileaperto::modo::lettura);
    byte.resize(file.leggi(byte));
  } catch (const RuntimeError& errore) {
    if (errore.number() != error_file_not_found) throw;
    salvafileini_dis(doc);
    return;
  }
  slotletti slot(byte);
  scorri(doc, slot);
}

void salvafileini_dis(distipo& doc) {
  slotscritti slot;
  scorri(doc, slot);
  fileaperto file(doc.bas.fileini, fileaperto::modo::scrittura);
  file.scrivi(slot.tutti());
  file.chiudi();
}

}  // namespace trelvo
