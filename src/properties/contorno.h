// Style, thickness and colour of an outline in the dialogs of lines and of surfaces. Each value stands as text in a
// label; one that reads "Vari" stands for values that differ and are to be left alone.
#pragma once

#include <functional>
#include <optional>

#include "document/contorno.h"
#include "document/trelvobas.h"

namespace trelvo {

// The controls of one dialog.
struct contorno {
  TextBox& Text1;
  Label& spessore;
  Label& colore;
  Label& tratto;
  ControlArray<PictureBox>& picture1;
  Frame& Frame3;
  std::function<void()> anteprima;
};

// Links the handlers of the thickness, the swatches and the colour button. Once.
void prepara_contorno(trelvobas& bas, const contorno& c, Button& pulsante_colore);

// Links a button that changes the colour in a label by the colour dialog.
void collega_colore(trelvobas& bas, Button& pulsante, Label& colore, const std::function<void()>& dopo);

// A swatch is chosen.
void scegli_tratto(const contorno& c, int indice);

// Shows the values of an outline; those that differ are no values.
void mostra_contorno(const contorno& c, std::optional<std::int32_t> tratto, const std::optional<std::string>& spessore,
                     std::optional<Color> colore);

// The label as a value, hidden; or "Vari", in view.
void mostra_valore(Label& label, const std::optional<std::int32_t>& valore);

// Thickness as the user sees it, a tenth of the stored one.
std::string spessore_mostrato(float spessore);
std::string spessore_mostrato(std::int32_t spessore);

// What the labels say; nothing for "Vari". Errors 6 for values without a place in the object.
std::optional<float> spessore_scelto(const Label& label);
std::optional<Color> colore_scelto(const Label& label);
std::optional<std::int32_t> tratto_scelto(const Label& label);
std::optional<std::int32_t> indice_scelto(const Label& label);

// The same for a preview, which shows nothing of a label before it is filled.
std::optional<std::int32_t> valore_in_vista(const Label& label);

// Swatch of a stored style, and back.
int indice_di_tratto(std::int32_t tratto);

}  // namespace trelvo
