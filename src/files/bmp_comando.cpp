#include "files/bmp_comando.h"

#include <span>
#include <string>

#include "document/trelvobas.h"
#include "files/accesso_file.h"
#include "files/chiedi_nome.h"
#include "platform/image_file.h"

namespace trelvo {

void creabmp(distipo& doc) {
  CommonDialog& dialogo = doc.bas.frmMain.CommonDialog1;
  dialogo.Filter = "Immagine BMP (*.BMP)|*.BMP|";
  dialogo.FilterIndex = 1;
  const std::string nome = chiedi_nome(doc.bas.desktop, dialogo);
  if (!scrivibile(nome)) return;
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  const std::string immagine = bmp_bytes(doc.surface.Image());
  fileaperto file(nome, fileaperto::modo::vuotato);
  try {
    file.scrivi(std::as_bytes(std::span(immagine)));
    file.completa();
  } catch (const RuntimeError&) {
    // Half a picture would open like a whole one.
    file.svuota();
    throw;
  }
}

}  // namespace trelvo
