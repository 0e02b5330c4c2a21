#include "files/dis_scrittura.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "files/valori.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr std::size_t record_per_blocco = 1024;

// A record of zeros and blank texts.
constexpr auto record_pulito = [] {
  std::array<std::byte, lunghezza_slot> record{};
  std::fill_n(record.begin() + posto_tipo, lunghezza_tipo, std::byte{' '});
  std::fill_n(record.begin() + posto_stringa, lunghezza_stringa, std::byte{' '});
  return record;
}();

class scrittore {
 public:
  scrittore(std::int16_t nvertici, const consegna& scarica)
      : nvertici_(nvertici), scarica_(scarica), blocco_(record_per_blocco * lunghezza_slot) {}

  void oggetto(const Linea& o) {
    nuovo(tipo_linea);
    punto(1, o.Xi, o.Yi);
    punto(2, o.Xf, o.Yf);
    tratto(o.colorelinea, o.TipoLinea, o.speslinea);
  }

  void oggetto(const superficie& o) {
    spezzata(o, tipo_superficie, tipo_continua_superficie, [&] {
      tratto(o.colcont, o.trattcont, o.spescont);
      campitura(o);
    });
  }

  void oggetto(const polilinea& o) {
    spezzata(o, tipo_polilinea, tipo_continua_polilinea, [&] { tratto(o.colcont, o.trattcont, o.spescont); });
  }

  void oggetto(const Arco& o) {
    nuovo(tipo_arco);
    punto(1, o.p1x, o.p1y);
    punto(2, o.p2x, o.p2y);
    punto(3, o.p3x, o.p3y);
    tratto(o.colcont, o.trattcont, o.spescont);
  }

  void oggetto(const Cerchio& o) {
    nuovo(tipo_cerchio);
    punto(1, o.Xcentro, o.Ycentro);
    punto(2, o.Xpunto, o.YPunto);
    tratto(o.colcont, o.trattcont, o.spescont);
    campitura(o);
  }

  void oggetto(const Rettangolo& o) {
    nuovo(tipo_rettangolo);
    for (int i = 1; i <= vertici_per_record; ++i) punto(i, o.vertici.preleva(i));
    tratto(o.colcont, o.trattcont, o.spescont);
    campitura(o);
    nuovo(tipo_continua_rettangolo);
    punto(1, o.vertici.preleva(vertici_per_record + 1));
  }

  void oggetto(const testo& o) {
    const auto segno = [](std::int16_t valore) { return valore == vero ? 1 : 0; };
    nuovo(tipo_testo);
    punto(1, o.pos_testox, o.pos_testoy);
    punto(2, segno(o.barrato_testo), segno(o.bold_testo));
    punto(3, segno(o.corsivo_testo()), segno(o.opaco_testo));
    tratto(o.colore_testo, segno(o.sottolineato_testo), o.dimens_testo);
    metti<std::int32_t>(record_ + posto_colore2, o.colore_opaco_testo);
    metti<std::int32_t>(record_ + posto_riemp, o.ang_testo());
    const std::string stringa = to_code_page(o.carattere_testo() + o.stringa_testo);
    std::memcpy(record_ + posto_stringa, stringa.data(), std::min(stringa.size(), lunghezza_stringa));
  }

  void svuota() {
    if (pieni_ > 0) scarica_(std::span(blocco_).first(pieni_ * lunghezza_slot));
    pieni_ = 0;
  }

  // The last record, whether it was handed out already or not; null if there is none.
  const std::byte* ultimo() const { return record_; }

 private:
  void nuovo(std::string_view tipo) {
    if (pieni_ == record_per_blocco) svuota();
    record_ = blocco_.data() + pieni_++ * lunghezza_slot;
    std::memcpy(record_, record_pulito.data(), lunghezza_slot);
    std::memcpy(record_ + posto_tipo, tipo.data(), tipo.size());
    metti<std::int16_t>(record_ + posto_nvertici, nvertici_);
  }

  void punto(int k, double x, double y) {
    std::byte* dove = record_ + posto_punto[static_cast<std::size_t>(k)];
    metti<double>(dove, x);
    metti<double>(dove + sizeof(double), y);
  }
  void punto(int k, const vertice& v) { punto(k, v.x, v.y); }

  void tratto(std::int32_t colore, std::int32_t tipo, float spessore) {
    metti<std::int32_t>(record_ + posto_colore1, colore);
    metti<std::int32_t>(record_ + posto_tratto, tipo);
    metti<float>(record_ + posto_spessore, spessore);
  }

  template <class Classe>
  void campitura(const Classe& o) {
    metti<std::int32_t>(record_ + posto_colore2, o.colocampitura);
    metti<std::int32_t>(record_ + posto_riemp, o.campitura);
  }

  template <class Classe, class Attributi>
  void spezzata(const Classe& o, std::string_view tipo, std::string_view continua, Attributi&& attributi) {
    const int n = o.vertic();
    for (int primo = 0; primo < n; primo += vertici_per_record) {
      if (primo == 0) nvertici_ = o.vertic();
      nuovo(primo == 0 ? tipo : continua);
      if (primo == 0) attributi();
      for (int k = 1; k <= std::min(vertici_per_record, n - primo); ++k) punto(k, o.vertici.preleva(primo + k));
    }
  }

  std::int16_t nvertici_;
  const consegna& scarica_;
  std::vector<std::byte> blocco_;
  std::size_t pieni_ = 0;
  std::byte* record_ = nullptr;
};

}  // namespace

void scrivi_disegno(const testatadis& testata, const disegno& dis, reccomando& scarto, const consegna& scarica) {
  scrittore s(scarto.nvertici, scarica);
  scarica(codifica(testata));
  visita<Linea, superficie, polilinea, Arco, Cerchio, Rettangolo, testo>(dis, [&](const auto& oggetto) {
    if (oggetto.stato != stato_cancellato) s.oggetto(oggetto);
  });
  s.svuota();
  if (s.ultimo() != nullptr) scarto = immagine(s.ultimo());
}

}  // namespace trelvo
