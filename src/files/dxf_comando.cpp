#include "files/dxf_comando.h"

#include <optional>
#include <string>

#include "document/trelvobas.h"
#include "files/accesso_file.h"
#include "files/chiedi_nome.h"
#include "files/dxf_scrittura.h"
#include "files/errore_rimandato.h"

namespace trelvo {

namespace {

// False if anything went wrong; each piece of the file is tried all the same.
bool scrivi_file(distipo& doc, const std::string& nome) {
  errorerimandato errore;
  std::optional<fileaperto> file;
  if (!errore.prova([&] { file.emplace(nome, fileaperto::modo::vuotato); })) return false;
  errore.prova([&] {
    scrivi_dxf(doc.dis, doc.vista.ymaxdis,
               [&](std::span<const std::byte> dati) { errore.prova([&] { file->scrivi(dati); }); });
  });
  errore.prova([&] { file->chiudi(); });
  return !errore.presente();
}

}  // namespace

void crea_dxf(distipo& doc) {
  Desktop& desktop = doc.bas.desktop;
  CommonDialog& dialogo = doc.bas.frmMain.CommonDialog1;
  dialogo.Filter = "File Acad DXF (*.DXF)|*.DXF|";
  dialogo.FilterIndex = 1;
  const std::string nome = chiedi_nome(desktop, dialogo);
  if (nome.empty()) return;
  const PointerGuard attesa(desktop, pointer_hourglass);
  if (!scrivi_file(doc, nome)) desktop.message_box("Errore nella creazione del file:" + nome, Buttons::ok);
}

}  // namespace trelvo
