#include "script/objects.h"

#include <gtest/gtest.h>

#include <sstream>

#include "script/failure.h"

namespace trelvo {
namespace {

std::string printed(const disegno& dis, const std::string& only = {}) {
  std::ostringstream stream;
  Output output(stream);
  print_objects(dis, only, output);
  output.flush();
  return stream.str();
}

TEST(Objects, EveryFieldAsHeld) {
  disegno dis;
  Linea linea;
  linea.stato = stato_selezionato;
  linea.speslinea = 0.1F;
  linea.Xi = 0.1;
  linea.Xf = 4;
  linea.Yf = 3;
  linea.vert2_selez = 1;
  dis.collLinee.aggiungi(linea);

  superficie sup;
  sup.vertic(2);
  sup.inser_vert_sup(1, 2, 1);
  sup.inser_vert_sup(3, -4.5, 2);
  sup.ins_vertselez(1, 2);
  sup.campitura = 7;
  dis.collSuperfici.aggiungi(sup);

  testo scritta;
  scritta.carattere_testo("Times New Roman");
  scritta.corsivo_testo(vero);
  scritta.ang_testo(45);
  scritta.stringa_testo = "due \"parole\" ";
  scritta.nCartesto = 13;
  dis.collTesti.aggiungi(scritta);

  const std::string line =
      "Linea 1 stato=-1 stampare=0 speslinea=0.1 TipoLinea=0 colorelinea=0 Xi=0.1 Yi=0 Yf=3 Xf=4 vert1_selez=0 "
      "vert2_selez=1\n";
  EXPECT_EQ(printed(dis),
            "superficie 1 stato=0 stampare=0 hBmp=0 vertic=2 v1=1,2 v2=3,-4.5 perimet=0 supf=0 colcont=0 spescont=0 "
            "trattcont=0 campitura=7 colocampitura=0 sel=01\n" +
                line +
                "testo 1 stato=0 stampare=0 dimens_testo=0 carattere_testo=\"Times New Roman\" barrato_testo=0 "
                "opaco_testo=0 sottolineato_testo=0 corsivo_testo=-1 bold_testo=0 ang_testo=45 nCartesto=13 "
                "colore_testo=0 colore_opaco_testo=0 stringa_testo=\"due \\\"parole\\\" \" pos_testox=0 "
                "pos_testoy=0\n");
  EXPECT_EQ(printed(dis, "Linea"), line);
  EXPECT_EQ(printed(dis, "Arco"), "");
  EXPECT_THROW(printed(dis, "linea"), ScriptFailure);
}

}  // namespace
}  // namespace trelvo
