#include "properties/contorno.h"

#include <cmath>

#include "model/tavolozza.h"
#include "platform/numbers.h"

namespace trelvo {

namespace {

constexpr std::int32_t tratto_trasparente = 5;
constexpr int colore_campione_scelto = 3;
constexpr int colore_campione = 15;
constexpr int campione_continuo = 1;
constexpr double decimi = 10;

bool e_vari(const Label& label) { return label.Caption.get() == vari; }

double numero_di(const Label& label) { return numeric_prefix(label.Caption.get()); }

// Out of range is written so that it reads as such again.
std::string testo_numero(double numero) {
  if (std::isfinite(numero)) return number_text_trimmed(numero);
  return numero < 0 ? "-1E+999" : "1E+999";
}

void nascondi_con(Label& label, std::string valore) {
  label.Visible = false;
  label.Caption = std::move(valore);
}

// Dashes do not show in a wide line.
void Text1_Change(const contorno& c) {
  const double numero = numeric_prefix(c.Text1.Text.get());
  c.spessore.Visible = false;
  if (numero_di(c.tratto) != 0 && numero > 1) scegli_tratto(c, campione_continuo);
  c.spessore.Caption = testo_numero(numero * decimi);
  c.anteprima();
}

template <class Numero>
std::string con_zero(Numero numero) {
  const std::string testo = number_text_trimmed(numero);
  return testo.starts_with('.') ? "0" + testo : testo;
}

}  // namespace

// A style that no pen has, as a file may bring it, comes back as it was.
int indice_di_tratto(std::int32_t tratto) {
  return tratto == tratto_trasparente ? 0 : static_cast<std::int32_t>(static_cast<std::uint32_t>(tratto) + 1U);
}

void prepara_contorno(trelvobas& bas, const contorno& c, Button& pulsante_colore) {
  for (const auto& [indice, campione] : c.picture1.items()) {
    campione->Click = [c, i = indice] { scegli_tratto(c, i); };
  }
  c.Text1.Text.on_change([c] { Text1_Change(c); });
  c.Text1.KeyPress = [](int& codice) {
    if (codice == ',') codice = '.';
  };
  collega_colore(bas, pulsante_colore, c.colore, c.anteprima);
}

void collega_colore(trelvobas& bas, Button& pulsante, Label& colore, const std::function<void()>& dopo) {
  pulsante.Click = [&bas, &colore, dopo] {
    Color scelto = static_cast<Color>(round_clamped(numero_di(colore)));
    if (!bas.desktop.show_color(scelto)) return;
    nascondi_con(colore, std::to_string(scelto));
    dopo();
  };
}

void scegli_tratto(const contorno& c, int indice) {
  nascondi_con(c.tratto, std::to_string(indice));
  for (const auto& [i, campione] : c.picture1.items()) {
    campione->BackColor = tavolozza(i == indice ? colore_campione_scelto : colore_campione);
    if (i == indice) c.Frame3.Caption = "Tratto Contorno: " + campione->ToolTipText.get();
  }
  c.anteprima();
}

void mostra_valore(Label& label, const std::optional<std::int32_t>& valore) {
  label.Caption = valore ? std::to_string(*valore) : vari;
  label.Visible = !valore;
}

void mostra_contorno(const contorno& c, std::optional<std::int32_t> tratto, const std::optional<std::string>& spessore,
                     std::optional<Color> colore) {
  if (tratto) {
    scegli_tratto(c, indice_di_tratto(*tratto));
  } else {
    for (const auto& [i, campione] : c.picture1.items()) campione->BackColor = tavolozza(colore_campione);
    mostra_valore(c.tratto, std::nullopt);
    c.Frame3.Caption = "Tratto Contorno:";
  }
  c.Text1.Text = spessore.value_or("");
  Text1_Change(c);
  if (!spessore) mostra_valore(c.spessore, std::nullopt);
  mostra_valore(c.colore, colore);
  c.anteprima();
}

std::string spessore_mostrato(float spessore) { return con_zero(static_cast<float>(spessore / decimi)); }
std::string spessore_mostrato(std::int32_t spessore) { return con_zero(spessore / decimi); }

std::optional<float> spessore_scelto(const Label& label) {
  if (e_vari(label)) return std::nullopt;
  const auto spessore = static_cast<float>(numero_di(label));
  if (!std::isfinite(spessore)) throw RuntimeError(error_overflow);
  return spessore;
}

std::optional<std::int32_t> indice_scelto(const Label& label) {
  if (e_vari(label)) return std::nullopt;
  return round_to_int32(numero_di(label));
}

std::optional<std::int32_t> valore_in_vista(const Label& label) {
  if (e_vari(label) || label.Caption.get().empty()) return std::nullopt;
  return round_clamped(numero_di(label));
}

std::optional<Color> colore_scelto(const Label& label) { return indice_scelto(label); }

std::optional<std::int32_t> tratto_scelto(const Label& label) {
  const auto indice = indice_scelto(label);
  if (!indice) return std::nullopt;
  return *indice == 0 ? tratto_trasparente : static_cast<std::int32_t>(static_cast<std::uint32_t>(*indice) - 1U);
}

}  // namespace trelvo
