#include "report/richtextbox.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/whole_file.h"
#include "report/caratteri.h"
#include "report/caricamento.h"
#include "report/rtf_scrittura.h"

namespace trelvo {

namespace {

constexpr std::size_t file_massimo = std::size_t{256} << 20;
constexpr Color colore_massimo = 0xFFFFFF;

int compreso(int valore, int minimo, int massimo) {
  if (valore < minimo || valore > massimo) throw RuntimeError(error_bad_call);
  return valore;
}

std::size_t posto(int valore) { return static_cast<std::size_t>(compreso(valore, 0, std::numeric_limits<int>::max())); }

int mezzipunti(float punti) {
  if (!(punti >= 1 && punti <= static_cast<float>(mezzipunti_massimi) / 2)) throw RuntimeError(error_bad_call);
  return static_cast<int>(std::lround(punti * 2));
}

std::string nome_valido(const std::string& testo) {
  std::string nome = nome_di_carattere(testo);
  if (nome.empty()) throw RuntimeError(error_bad_call);
  return nome;
}

}  // namespace

LinkedProperty<bool> RichTextBox::qualita(const char* nome, bool formatocarattere::*quale) {
  return {*this, nome, [this, quale] { return formato().*quale; },
          [this, quale](bool valore) { cambia([&](formatocarattere& f) { f.*quale = valore; }); }};
}

RichTextBox::RichTextBox(Form& owner, std::string control)
    : Control(owner, std::move(control)),
      Text(
          *this, "Text", [this] { return in_utf8(testo_.testo()); },
          [this](const std::string& testo) {
            relazione nuovo;
            nuovo.aggiungi(ripulito(da_utf8(testo)), {});
            metti(std::move(nuovo));
          }),
      SelText(
          *this, "SelText", [this] { return in_utf8(std::u32string_view(testo_.testo()).substr(inizio_, lunghezza_)); },
          [this](const std::string& testo) { scrivi(ripulito(da_utf8(testo))); }),
      SelStart(
          *this, "SelStart", [this] { return static_cast<int>(inizio_); },
          [this](int valore) { seleziona(posto(valore), 0); }),
      SelLength(
          *this, "SelLength", [this] { return static_cast<int>(lunghezza_); },
          [this](int valore) { seleziona(inizio_, posto(valore)); }),
      SelAlignment(
          *this, "SelAlignment", [this] { return static_cast<int>(formato_paragrafo().allinea); },
          [this](int valore) {
            const auto come = static_cast<allineamento>(compreso(valore, 0, 3));
            cambia_paragrafi([&](formatoparagrafo& f) { f.allinea = come; });
          }),
      SelBullet(
          *this, "SelBullet", [this] { return formato_paragrafo().puntato; },
          [this](bool valore) {
            cambia_paragrafi([&](formatoparagrafo& f) {
              if (f.puntato != valore) f = valore ? con_punto(f, rientro_punto_) : senza_punto(f);
            });
          }),
      BulletIndent(
          *this, "BulletIndent", [this] { return rientro_punto_; },
          [this](int valore) {
            rientro_punto_ = compreso(valore, 0, scostamento_massimo);
            cambia_paragrafi([&](formatoparagrafo& f) {
              if (f.puntato) f = con_punto(f, rientro_punto_);
            });
          }),
      SelCharOffset(
          *this, "SelCharOffset", [this] { return formato().scostamento; },
          [this](int valore) {
            const int twip = compreso(valore, -scostamento_massimo, scostamento_massimo);
            cambia([&](formatocarattere& f) { f.scostamento = twip; });
          }),
      SelFontName(
          *this, "SelFontName", [this] { return formato().nome; },
          [this](const std::string& testo) {
            const std::string nome = nome_valido(testo);
            cambia([&](formatocarattere& f) { f.nome = nome; });
          }),
      SelFontSize(
          *this, "SelFontSize", [this] { return static_cast<float>(formato().mezzipunti) / 2; },
          [this](float punti) {
            const int misura = mezzipunti(punti);
            cambia([&](formatocarattere& f) { f.mezzipunti = misura; });
          }),
      SelBold(qualita("SelBold", &formatocarattere::grassetto)),
      SelItalic(qualita("SelItalic", &formatocarattere::corsivo)),
      SelUnderline(qualita("SelUnderline", &formatocarattere::sottolineato)),
      SelStrikeThru(qualita("SelStrikeThru", &formatocarattere::barrato)),
      SelColor(
          *this, "SelColor", [this] { return formato().colore; },
          [this](Color valore) {
            const Color colore = compreso(valore, 0, colore_massimo);
            cambia([&](formatocarattere& f) { f.colore = colore; });
          }) {}

formatocarattere RichTextBox::formato() const {
  if (lunghezza_ == 0) return prossimo_ ? *prossimo_ : testo_.formato_inserimento(inizio_);
  formatocarattere comune = testo_.formato(inizio_);
  testo_.per_ogni_tratto(inizio_, lunghezza_, [&](std::size_t, std::size_t, const formatocarattere& f) {
    comune.grassetto &= f.grassetto;
    comune.corsivo &= f.corsivo;
    comune.sottolineato &= f.sottolineato;
    comune.barrato &= f.barrato;
    if (f.scostamento != comune.scostamento) comune.scostamento = 0;
  });
  return comune;
}

formatoparagrafo RichTextBox::formato_paragrafo() const {
  const auto& paragrafi = testo_.paragrafi();
  const std::size_t primo = testo_.indice_paragrafo(inizio_);
  const std::size_t ultimo = testo_.indice_paragrafo(lunghezza_ > 0 ? inizio_ + lunghezza_ - 1 : inizio_);
  formatoparagrafo comune = paragrafi[primo].formato;
  for (std::size_t i = primo; i <= ultimo; ++i) comune.puntato &= paragrafi[i].formato.puntato;
  return comune;
}

void RichTextBox::cambiato() {
  if (Change) Change();
}

void RichTextBox::selezione_cambiata() {
  if (vista != nullptr) vista->selezionato();
  if (SelChange) SelChange();
}

void RichTextBox::seleziona(std::size_t inizio, std::size_t lunghezza) {
  inizio = std::min(inizio, testo_.lunghezza());
  lunghezza = std::min(lunghezza, testo_.lunghezza() - inizio);
  if (inizio == inizio_ && lunghezza == lunghezza_) return;
  inizio_ = inizio;
  lunghezza_ = lunghezza;
  prossimo_.reset();
  selezione_cambiata();
}

void RichTextBox::sostituisci_selezione(std::u32string_view testo) {
  const formatocarattere come = lunghezza_ > 0 ? testo_.formato(inizio_) : formato();
  const std::size_t inizio = inizio_;
  const std::size_t tolti = lunghezza_;
  testo_.sostituisci(inizio, tolti, testo, come);
  inizio_ = inizio + testo.size();
  lunghezza_ = 0;
  prossimo_.reset();
  if (vista != nullptr) vista->sostituito(inizio, tolti, testo.size());
  cambiato();
  selezione_cambiata();
}

void RichTextBox::scrivi(std::u32string_view testo) {
  if (!testo.empty() || lunghezza_ > 0) sostituisci_selezione(testo);
}

void RichTextBox::cancella_indietro() {
  if (lunghezza_ == 0 && inizio_ > 0) {
    --inizio_;
    lunghezza_ = 1;
  }
  scrivi({});
}

void RichTextBox::cambia(const std::function<void(formatocarattere&)>& come) {
  if (lunghezza_ == 0) {
    formatocarattere nuovo = formato();
    come(nuovo);
    if (nuovo == formato()) return;
    prossimo_ = nuovo;
  } else {
    if (!testo_.cambia_caratteri(inizio_, lunghezza_, come)) return;
    if (vista != nullptr) vista->formattati(inizio_, lunghezza_);
    cambiato();
  }
  selezione_cambiata();
}

void RichTextBox::cambia_paragrafi(const std::function<void(formatoparagrafo&)>& come) {
  if (!testo_.cambia_paragrafi(inizio_, lunghezza_, come)) return;
  if (vista != nullptr) vista->paragrafi_formattati(inizio_, lunghezza_);
  cambiato();
  selezione_cambiata();
}

void RichTextBox::sostituisci(const std::vector<std::size_t>& posti, std::size_t lunghezza, std::u32string_view testo) {
  if (posti.empty()) return;
  testo_.sostituisci(posti, lunghezza, testo);
  inizio_ = std::min(inizio_, testo_.lunghezza());
  lunghezza_ = 0;
  prossimo_.reset();
  const std::size_t tolti = posti.back() + lunghezza - posti.front();
  const std::size_t messi = tolti - posti.size() * lunghezza + posti.size() * testo.size();
  if (vista != nullptr) vista->sostituito(posti.front(), tolti, messi);
  cambiato();
  selezione_cambiata();
}

void RichTextBox::metti(relazione testo) {
  const bool uguale = testo == testo_;
  testo_ = std::move(testo);
  inizio_ = 0;
  lunghezza_ = 0;
  prossimo_.reset();
  if (vista != nullptr) vista->caricato();
  if (!uguale) cambiato();
  selezione_cambiata();
}

void RichTextBox::LoadFile(const std::string& nome) { metti(leggi_relazione(read_whole_file(nome, file_massimo))); }

void RichTextBox::SaveFile(const std::string& nome) const { replace_whole_file(nome, scrivi_rtf(testo_)); }

void RichTextBox::modificato(std::size_t inizio, std::size_t tolti, std::u32string_view testo,
                             const std::vector<relazione::tratto>& formati,
                             const std::vector<formatoparagrafo>& paragrafi) {
  testo_.sostituisci(inizio, tolti, testo, formati);
  testo_.formati_paragrafi(testo_.indice_paragrafo(inizio), paragrafi);
  prossimo_.reset();
  inizio_ = std::min(inizio_, testo_.lunghezza());
  lunghezza_ = std::min(lunghezza_, testo_.lunghezza() - inizio_);
  cambiato();
  if (SelChange) SelChange();
}

}  // namespace trelvo
