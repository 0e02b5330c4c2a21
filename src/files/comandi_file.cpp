#include "files/comandi_file.h"

#include <algorithm>

#include "files/accesso_file.h"
#include "files/chiedi_nome.h"
#include "files/dis_documento.h"
#include "files/recupero.h"

namespace trelvo {

namespace {

constexpr const char* filtro_disegni =
    "DIsegni Trelvo (*.DIS)|*.DIS|Disegni file-testo (*.TXT)|*.TXT|Tutti i file (*.*)|*.*";
constexpr const char* inizio_senza_nome = "Disegno _";
constexpr const char* estensione_testo = ".txt";

CommonDialog& dialogo_pronto(trelvobas& bas) {
  CommonDialog& dialogo = bas.frmMain.CommonDialog1;
  dialogo.Filter = filtro_disegni;
  dialogo.FilterIndex = 1;
  dialogo.FileName.clear();
  return dialogo;
}

void salva_con_nome(trelvobas& bas, distipo& doc) {
  const std::string nome =
      chiedi_nome(bas.desktop, dialogo_pronto(bas), senza_nome(doc.Caption) ? std::string() : doc.Caption.get());
  if (!scrivibile(nome)) return;
  doc.Caption = nome;
  // Whatever is there, the user said that it may go.
  doc.impronta = impronta(nome);
  salvafile(doc);
}

bool in_uso(const trelvobas& bas, const std::string& nome) {
  const std::size_t fine = std::min(static_cast<std::size_t>(std::max(bas.ndocumenti, 0)), bas.nomidocumenti.size());
  for (std::size_t i = 1; i < fine; ++i) {
    if (!nome.empty() && bas.nomidocumenti[i] == nome) return true;
  }
  return false;
}

// The document's name, and the file to read; false if there is nothing to read.
bool scegli_file(trelvobas& bas, std::string& nome, std::string& sorgente) {
  CommonDialog& dialogo = dialogo_pronto(bas);
  if (!bas.desktop.show_open(dialogo)) return false;
  nome = dialogo.FileName;
  if (in_uso(bas, nome)) {
    bas.desktop.message_box(nome + "  Attualmente in uso.", Buttons::ok);
    return false;
  }
  const std::optional<std::string> scelta = scegli_sorgente(bas.desktop, nome);
  sorgente = scelta.value_or(std::string());
  return leggibile(sorgente);
}

void apri(trelvobas& bas, distipo& doc, const servizifile& servizi) {
  std::string nome;
  std::string sorgente;
  if (!scegli_file(bas, nome, sorgente)) {
    // The next window gets this one's number: it has to go, whatever size it took meanwhile.
    doc.cmd.modificato = 0;
    --bas.progrdocumento;
    servizi.scarica(doc);
    return;
  }
  registra_nome(doc, nome);
  if (testo_di_disegno(nome)) {
    servizi.importa(doc);
  } else {
    leggifile(doc, sorgente);
  }
}

}  // namespace

void registra_nome(distipo& doc, const std::string& nome) {
  trelvobas& bas = doc.bas;
  doc.Caption = nome;
  doc.aperto_da = nome;
  if (bas.ndocumenti < 1) return;
  const auto posto = static_cast<std::size_t>(bas.ndocumenti);
  if (bas.nomidocumenti.size() <= posto) bas.nomidocumenti.resize(posto + 1);
  bas.nomidocumenti[posto] = nome;
}

bool senza_nome(const std::string& titolo) { return titolo.starts_with(inizio_senza_nome); }

bool testo_di_disegno(const std::string& nome) { return nome.ends_with(estensione_testo); }

std::string titolo_senza_nome(int numero) { return std::string(inizio_senza_nome) + ' ' + std::to_string(numero); }

void aprisalvadisegno(trelvobas& bas, const std::string& comando, const servizifile& servizi) {
  distipo* doc = bas.attivo();
  if (doc == nullptr) return;
  if (comando == "Apri") {
    apri(bas, *doc, servizi);
  } else if (comando == "Salva" && !senza_nome(doc->Caption)) {
    salvafile(*doc);
  } else if (comando == "Salva" || comando == "SalvaConNome") {
    salva_con_nome(bas, *doc);
  }
}

}  // namespace trelvo
