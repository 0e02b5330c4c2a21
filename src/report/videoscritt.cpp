#include "report/videoscritt.h"

#include <array>
#include <filesystem>
#include "report/aprisalva.h"

namespace trelvo {

namespace {

struct voce {
  int indice;
  const char* scritta;
  int tasto = 0;
};

constexpr voce voci_file[] = {{1, "Nuovo", key_control + 'N'},
                              {2, "Apri", key_control + 'O'},
                              {3, "Salva", key_control + 'S'},
                              {4, "Salva Con Nome", key_control + key_shift + 'S'},
                              {5, "Chiudi"},
                              {6, "-"},
                              {7, "&Esci", key_control + 'Q'}};
constexpr voce voci_modifica[] = {{1, "C&opia", key_control + 'C'},
                                  {2, "&Taglia", key_control + 'X'},
                                  {3, "&Incolla", key_control + 'V'},
                                  {4, "-"},
                                  {5, "Trova - Sostituisci", key_control + 'F'},
                                  {6, "-"},
                                  {7, "Seleziona Tutto", key_control + 'A'}};
constexpr voce voci_allinea[] = {{1, "Allinea a Sinistra", key_control + 'L'},
                                 {2, "Centra", key_control + 'E'},
                                 {3, "Allinea a Destra", key_control + 'R'},
                                 {4, "-"},
                                 {5, "Rientri Paragrafo"},
                                 {6, "Elenco Puntato", key_control + key_shift + 'L'}};

template <class Voci>
void aggiungi_voci(Form& form, ControlArray<MenuItem>& dove, const char* nome, const Voci& quali, MenuItem& sopra) {
  for (const voce& v : quali) dove.add(form, nome, v.indice, v.scritta, &sopra, v.tasto);
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
