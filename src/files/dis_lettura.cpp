#include "files/dis_lettura.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "files/dis_formato.h"
#include "files/valori.h"
#include "geometry/misure.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr std::size_t record_per_blocco = 1024;

// Hands out the records one by one.
class flussorecord {
 public:
  flussorecord(const prelievo& preleva, letturadis& esito)
      : preleva_(preleva), esito_(esito), blocco_(record_per_blocco * lunghezza_slot) {}

  // False if there is none in full; else it is valid until the next call.
  bool avanza() {
    if (prossimo_ + lunghezza_slot > letti_) {
      const bool avanzo = prossimo_ < letti_;
      tieni_ultimo();
      letti_ = preleva_(blocco_);
      prossimo_ = 0;
      if (letti_ < lunghezza_slot) {
        if (avanzo || letti_ > 0) esito_.intero = false;
        return false;
      }
    }
    record_ = blocco_.data() + prossimo_;
    prossimo_ += lunghezza_slot;
    return true;
  }

  // Before its bytes go.
  void tieni_ultimo() {
    if (record_ != nullptr) esito_.scarto = immagine(record_);
    record_ = nullptr;
  }

  std::string_view bytetesto(std::size_t posto, std::size_t lunghezza) const {
    return {reinterpret_cast<const char*>(record_ + posto), lunghezza};
  }

  // Without the blanks around it.
  std::string_view tipo() const {
    const std::string_view campo = bytetesto(posto_tipo, lunghezza_tipo);
    const std::size_t inizio = campo.find_first_not_of(' ');
    if (inizio == std::string_view::npos) return {};
    return campo.substr(inizio, campo.find_last_not_of(' ') - inizio + 1);
  }

  template <class Numero = std::int32_t>
  Numero intero(std::size_t posto) const {
    return prendi<Numero>(record_ + posto);
  }

  template <class Numero>
  Numero finito(std::size_t posto) const {
    const auto valore = prendi<Numero>(record_ + posto);
    if (!std::isfinite(valore)) throw RuntimeError(error_overflow);
    return valore;
  }

  void punto(int k, double& x, double& y) const {
    const std::size_t posto = posto_punto[static_cast<std::size_t>(k)];
    x = finito<double>(posto);
    y = finito<double>(posto + sizeof(double));
  }

  // The two coordinates of a point as truth values.
  std::int16_t segno_x(int k) const { return segno(posto_punto[static_cast<std::size_t>(k)]); }
  std::int16_t segno_y(int k) const { return segno(posto_punto[static_cast<std::size_t>(k)] + sizeof(double)); }

 private:
  std::int16_t segno(std::size_t posto) const { return prendi<double>(record_ + posto) == 1 ? vero : falso; }

  const prelievo& preleva_;
  letturadis& esito_;
  std::vector<std::byte> blocco_;
  std::size_t letti_ = 0;
  std::size_t prossimo_ = 0;
  const std::byte* record_ = nullptr;
};

template <class Classe>
void contorno(const flussorecord& f, Classe& o) {
  o.colcont = f.intero(posto_colore1);
  o.trattcont = f.intero(posto_tratto);
  o.spescont = f.finito<float>(posto_spessore);
}

template <class Classe>
void campitura(const flussorecord& f, Classe& o) {
  o.colocampitura = f.intero(posto_colore2);
  o.campitura = f.intero(posto_riemp);
}

// The measures are not in the file.
template <class Classe>
void misura_contorno(Classe& o) {
  o.perimet = perimetro(o.vertici.tutti());
  o.supf = area(o.vertici.tutti());
}

// The vertices from the present record on, three a record. False if the file ends before the last one.
bool vertici(flussorecord& f, elencovertici& elenco, std::int16_t n) {
  if (n < 0) return false;
  elenco.vertic(n);
  for (int primo = 0; primo < n; primo += vertici_per_record) {
    if (primo != 0 && !f.avanza()) return false;
    for (int k = 1; k <= vertici_per_record && primo + k <= n; ++k) {
      vertice v;
      f.punto(k, v.x, v.y);
      elenco.inserisci(v.x, v.y, primo + k);
    }
  }
  return true;
}

bool leggi(flussorecord& f, Linea& o) {
  f.punto(1, o.Xi, o.Yi);
  f.punto(2, o.Xf, o.Yf);
  o.colorelinea = f.intero(posto_colore1);
  o.TipoLinea = f.intero(posto_tratto);
  o.speslinea = f.finito<float>(posto_spessore);
  return true;
}

bool leggi(flussorecord& f, superficie& o) {
  contorno(f, o);
  campitura(f, o);
  if (!vertici(f, o.vertici, f.intero<std::int16_t>(posto_nvertici))) return false;
  misura_contorno(o);
  return true;
}

bool leggi(flussorecord& f, polilinea& o) {
  contorno(f, o);
  return vertici(f, o.vertici, f.intero<std::int16_t>(posto_nvertici));
}

bool leggi(flussorecord& f, Arco& o) {
  f.punto(1, o.p1x, o.p1y);
  f.punto(2, o.p2x, o.p2y);
  f.punto(3, o.p3x, o.p3y);
  contorno(f, o);
  return true;
}

bool leggi(flussorecord& f, Cerchio& o) {
  f.punto(1, o.Xcentro, o.Ycentro);
  f.punto(2, o.Xpunto, o.YPunto);
  contorno(f, o);
  campitura(f, o);
  const misure_cerchio m = misure_di_cerchio(o.Xcentro, o.Ycentro, o.Xpunto, o.YPunto);
  o.raggio = m.raggio;
  o.perimet = m.perimet;
  o.supf = m.supf;
  return true;
}

bool leggi(flussorecord& f, Rettangolo& o) {
  constexpr std::int16_t numero_vertici = 4;
  contorno(f, o);
  campitura(f, o);
  if (!vertici(f, o.vertici, numero_vertici)) return false;
  misura_contorno(o);
  return true;
}

bool leggi(flussorecord& f, testo& o) {
  f.punto(1, o.pos_testox, o.pos_testoy);
  o.barrato_testo = f.segno_x(2);
  o.bold_testo = f.segno_y(2);
  o.corsivo_testo(f.segno_x(3));
  o.opaco_testo = f.segno_y(3);
  o.sottolineato_testo = f.intero(posto_tratto) == 1 ? vero : falso;
  o.colore_testo = f.intero(posto_colore1);
  o.colore_opaco_testo = f.intero(posto_colore2);
  o.ang_testo(f.intero(posto_riemp));
  o.dimens_testo = f.finito<float>(posto_spessore);
  o.carattere_testo(from_code_page(f.bytetesto(posto_stringa, lunghezza_carattere)));
  o.stringa_testo =
      from_code_page(f.bytetesto(posto_stringa + lunghezza_carattere, lunghezza_stringa - lunghezza_carattere));
  return true;
}

// False if the file ends within the object.
template <class Classe>
bool aggiungi(flussorecord& f, disegno& dis) {
  Classe o;
  if (!leggi(f, o)) return false;
  collezione_di<Classe>(dis).aggiungi(std::move(o));
  return true;
}

struct riga {
  std::string_view tipo;
  bool (*aggiungi)(flussorecord&, disegno&);
};

constexpr std::array<riga, 7> righe{{
    {tipo_linea, aggiungi<Linea>},
    {tipo_superficie, aggiungi<superficie>},
    {tipo_polilinea, aggiungi<polilinea>},
    {tipo_arco, aggiungi<Arco>},
    {tipo_cerchio, aggiungi<Cerchio>},
    {tipo_rettangolo, aggiungi<Rettangolo>},
    {tipo_testo, aggiungi<testo>},
}};

void leggi_record(flussorecord& f, disegno& dis, letturadis& esito) {
  while (f.avanza()) {
    const std::string_view tipo = f.tipo();
    const auto* r = std::find_if(righe.begin(), righe.end(), [&](const riga& una) { return una.tipo == tipo; });
    if (r == righe.end()) {
      esito.intero = false;
      continue;
    }
    esito.riconosciuti = true;
    if (!r->aggiungi(f, dis)) {
      esito.intero = false;
      return;
    }
  }
}

}  // namespace

void leggi_oggetti(const prelievo& preleva, disegno& dis, letturadis& esito) {
  flussorecord f(preleva, esito);
  try {
    leggi_record(f, dis, esito);
  } catch (...) {
    f.tieni_ultimo();
    throw;
  }
  f.tieni_ultimo();
}

}  // namespace trelvo
