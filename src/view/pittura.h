// Painting of one object on its document's surface, in its own colours or in the contrast colour.
#pragma once

#include "document/distipo.h"
#include "geometry/riquadro_testo.h"

namespace trelvo {

void disegnalinea(distipo& doc, const Linea& linea, bool usacoloriproprio);
void disegnaarco(distipo& doc, const Arco& arco, bool usacoloriproprio);
void disegnacerchio(distipo& doc, const Cerchio& cerchio, bool usacoloriproprio);
void disegnaPolilinea(distipo& doc, const polilinea& pol, bool usacoloriproprio);
void disegnarettangolo(distipo& doc, const Rettangolo& ret, bool usacoloriproprio);
void disegnasuperficie(distipo& doc, const superficie& sup, bool usacoloriproprio);
void disegnatesto(distipo& doc, const testo& t, bool usacoloriproprio);

// The same under one name, for walks over all classes.
inline void disegna(distipo& doc, const Linea& o, bool proprio) { disegnalinea(doc, o, proprio); }
inline void disegna(distipo& doc, const Arco& o, bool proprio) { disegnaarco(doc, o, proprio); }
inline void disegna(distipo& doc, const Cerchio& o, bool proprio) { disegnacerchio(doc, o, proprio); }
inline void disegna(distipo& doc, const polilinea& o, bool proprio) { disegnaPolilinea(doc, o, proprio); }
inline void disegna(distipo& doc, const Rettangolo& o, bool proprio) { disegnarettangolo(doc, o, proprio); }
inline void disegna(distipo& doc, const superficie& o, bool proprio) { disegnasuperficie(doc, o, proprio); }
inline void disegna(distipo& doc, const testo& o, bool proprio) { disegnatesto(doc, o, proprio); }

SurfaceFont carattere_di(const testo& t);
// Width and height of a text in drawing units, the same at every scale but for rounding.
vertice ingombro_testo(distipo& doc, const testo& t);
// Corners of a text from its first one, all in logical units (drawing units times `rapscala`). Measures with the
// window's own font, which stays set to the text's.
riquadro_testo determvert_testo(distipo& doc, const testo& t, double X1, double Y1);
// The same in drawing units, from the text's own position.
riquadro_testo riquadro_mondo(distipo& doc, const testo& t);

Color colore_contrasto(const distipo& doc);

// A segment in drawing units as an outline of the given default width, style and colour; the surface's own draw width
// and style are put back.
void disegna_tratto(distipo& doc, double x1, double y1, double x2, double y2, std::int32_t spessore,
                    std::int32_t tratto, Color colore);

}  // namespace trelvo
