// The seven entity classes. Coordinates are in drawing units, colours 24 bits with red low, widths ten times the number
// that the dialogs show. Flags are 16-bit integers with -1 for true.
#pragma once

#include <cstdint>
#include <string>

#include "model/vertici.h"

namespace trelvo {

constexpr std::int16_t vero = -1;
constexpr std::int16_t falso = 0;

constexpr std::int16_t stato_presente = 0;
constexpr std::int16_t stato_selezionato = -1;
constexpr std::int16_t stato_cancellato = -2;

struct Linea {
  std::string Layer;
  std::int16_t Modificato = 0;
  std::int32_t Codice_Disegno = 0;
  float speslinea = 0;
  std::int32_t TipoLinea = 0;
  std::int32_t colorelinea = 0;
  double Xi = 0;
  double Yi = 0;
  double Yf = 0;
  double Xf = 0;
  std::int16_t stato = 0;
  std::int16_t stampare = 0;
  std::int16_t vert1_selez = 0;
  std::int16_t vert2_selez = 0;
};

// The arc runs from p1 to p2 through p3; centre and radius are derived when needed.
struct Arco {
  std::string Layer;
  std::int16_t Modificato = 0;
  std::int32_t Codice_Disegno = 0;
  double p1x = 0;
  double p1y = 0;
  double p2x = 0;
  double p2y = 0;
  double p3x = 0;
  double p3y = 0;
  std::int32_t colcont = 0;
  float spescont = 0;
  std::int32_t trattcont = 0;
  std::int16_t stato = 0;
  std::int16_t stampare = 0;
  std::int16_t vert1_selez = 0;
  std::int16_t vert2_selez = 0;
};

// raggio, perimet and supf are derived from the centre and the rim point, and stored.
struct Cerchio {
  std::string Layer;
  std::int16_t Modificato = 0;
  std::int32_t Codice_Disegno = 0;
  std::int32_t colcont = 0;
  float spescont = 0;
  std::int32_t trattcont = 0;
  std::int32_t campitura = 0;
  std::int32_t colocampitura = 0;
  double Xcentro = 0;
  double Ycentro = 0;
  double raggio = 0;
  std::int16_t stato = 0;
  std::int16_t stampare = 0;
  double perimet = 0;
  double supf = 0;
  double Xpunto = 0;
  double YPunto = 0;
};

// Open.
struct polilinea {
  std::string Layer;
  std::int16_t Modificato = 0;
  std::int32_t Codice_Disegno = 0;
  elencovertici vertici;
  std::int32_t colcont = 0;
  float spescont = 0;
  std::int32_t trattcont = 0;
  std::int16_t stato = 0;
  std::int16_t stampare = 0;
  double lunghez = 0;

  std::int16_t vertic() const { return vertici.vertic(); }
  void vertic(std::int16_t numero) { vertici.vertic(numero); }
  void inser_vert_pol(double x, double y, int i) { vertici.inserisci(x, y, i); }
  void prel_vert_pol(double& x, double& y, int i) const;
  void ins_vertselez(std::int16_t segno, int i) { vertici.seleziona(segno, i); }
  std::int16_t prel_vertselez(int i) const { return vertici.selezionato(i); }
};

// Four vertices; after a rotation any quadrilateral.
struct Rettangolo {
  std::string Layer;
  std::int16_t Modificato = 0;
  std::int32_t Codice_Disegno = 0;
  elencovertici vertici;
  double perimet = 0;
  double supf = 0;
  std::int32_t colcont = 0;
  float spescont = 0;
  std::int32_t trattcont = 0;
  std::int32_t campitura = 0;
  std::int32_t colocampitura = 0;
  std::int16_t stato = 0;
  std::int16_t stampare = 0;

  std::int16_t vertic() const { return vertici.vertic(); }
  void vertic(std::int16_t numero) { vertici.vertic(numero); }
  void inser_vert_ret(double x, double y, int i) { vertici.inserisci(x, y, i); }
  void prel_vert_ret(double& x, double& y, int i) const;
  void ins_vertselez(std::int16_t segno, int i) { vertici.seleziona(segno, i); }
  std::int16_t prel_vertselez(int i) const { return vertici.selezionato(i); }
};

// Closed; the closing edge is implied.
struct superficie {
  std::int32_t hBmp = 0;
  std::string Layer;
  std::int16_t Modificato = 0;
  std::int32_t Codice_Disegno = 0;
  elencovertici vertici;
  double perimet = 0;
  double supf = 0;
  std::int32_t colcont = 0;
  float spescont = 0;
  std::int32_t trattcont = 0;
  std::int32_t campitura = 0;
  std::int32_t colocampitura = 0;
  std::int16_t stato = 0;
  std::int16_t stampare = 0;

  std::int16_t vertic() const { return vertici.vertic(); }
  void vertic(std::int16_t numero) { vertici.vertic(numero); }
  void inser_vert_sup(double x, double y, int i) { vertici.inserisci(x, y, i); }
  void prel_vert_sup(double& x, double& y, int i) const;
  void ins_vertselez(std::int16_t segno, int i) { vertici.seleziona(segno, i); }
  std::int16_t prel_vertselez(int i) const { return vertici.selezionato(i); }
};

struct testo {
  std::string Layer;
  std::int16_t Modificato = 0;
  std::int32_t Codice_Disegno = 0;
  float dimens_testo = 0;
  std::int16_t barrato_testo = 0;
  std::int16_t opaco_testo = 0;
  std::int16_t sottolineato_testo = 0;
  std::int16_t bold_testo = 0;
  std::int32_t nCartesto = 0;
  std::int32_t colore_testo = 0;
  std::int32_t colore_opaco_testo = 0;
  std::string stringa_testo;
  double pos_testox = 0;
  double pos_testoy = 0;
  std::int16_t stato = 0;
  std::int16_t stampare = 0;

  // The face name ends in a character 0 and is padded with blanks to 32 characters, as the font record wants it.
  const std::string& carattere_testo() const { return carattere_; }
  void carattere_testo(const std::string& nome);
  // The name without terminator and padding.
  std::string nome_carattere() const;

  // Whole degrees, counter-clockwise on the screen; the field itself is a float.
  std::int32_t ang_testo() const;
  void ang_testo(std::int32_t gradi) { angolo_ = gradi; }
  double angolo() const { return angolo_; }

  // Reads the bold flag, and writes the italic one: the drawing reads `inclinato`, every copy gets the bold flag.
  std::int16_t corsivo_testo() const { return bold_testo; }
  void corsivo_testo(std::int16_t valore) { corsivo_ = valore; }
  std::int16_t inclinato() const { return corsivo_; }

 private:
  std::string carattere_ = std::string(32, ' ');
  double angolo_ = 0;
  std::int16_t corsivo_ = 0;
};

}  // namespace trelvo
