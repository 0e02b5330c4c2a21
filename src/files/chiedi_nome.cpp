#include "files/chiedi_nome.h"

#include "files/accesso_file.h"

namespace trelvo {

std::string chiedi_nome(Desktop& desktop, CommonDialog& dialogo, const std::string& proposto) {
  for (;;) {
    dialogo.FileName = proposto;
    if (!desktop.show_save(dialogo)) return {};
    std::string nome = dialogo.FileName;
    if (!leggibile(nome)) return nome;
    const int risposta = desktop.message_box("File \"" + nome + "\"  Esiste - Sovrapporre?", Buttons::yes_no_cancel);
    if (risposta == answer_yes) return nome;
    if (risposta != answer_no) return {};
  }
}

}  // namespace trelvo
