#include "report/videoscritt.h"

#include <array>
#include <filesystem>
#include <map>

#include "report/aprisalva.h"

namespace trelvo {

namespace {

using voci = std::map<int, const char*>;

const voci voci_file{{1, "Nuovo"},  {2, "Apri"}, {3, "Salva"}, {4, "Salva Con Nome"},
                     {5, "Chiudi"}, {6, "-"},    {7, "&Esci"}};
const voci voci_modifica{{1, "C&opia"}, {2, "&Taglia"},        {3, "&Incolla"}, {4, "-"}, {5, "Trova - Sostituisci"},
                         {6, "-"},      {7, "Seleziona Tutto"}};
const voci voci_allinea{{1, "Allinea a Sinistra"}, {2, "Centra"},        {3, "Allinea a Destra"}, {4, "-"},
                        {5, "Rientri Paragrafo"},  {6, "Elenco Puntato"}};

void aggiungi_voci(Form& form, ControlArray<MenuItem>& dove, const char* nome, const voci& quali, MenuItem& sopra) {
  for (const auto& [indice, scritta] : quali) dove.add(form, nome, indice, scritta, &sopra);
}

}  // namespace

videoscritt::videoscritt(Desktop& scrivania, std::string programma)
    : Form("videoscritt"), desktop(scrivania), cartella(std::move(programma)) {
  Caption = " Relazione a Video";
  aggiungi_voci(*this, file, "file", voci_file, mnufile);
  aggiungi_voci(*this, modifi, "modifi", voci_modifica, mnumodifica);
  aggiungi_voci(*this, allinea, "allinea", voci_allinea, paragrafo);
  collega_videoscritt(*this);
  prepara_trova(*this);
  prepara_rientri(*this);
}

void apri_relazione(videoscritt& v, const std::string& nome) {
  if (!v.loaded()) {
    v.load();
    v.Visible = true;
  }
  if (!nome.empty()) apri_file(v, nome);
}

}  // namespace trelvo
