#include "report/aprisalva.h"

#include <filesystem>
#include <new>

#include "report/videoscritt.h"

namespace trelvo {

namespace {

constexpr const char* programma = "Programma di Videoscrittura  -  Vers.ne 1.00  -  ";

CommonDialog& dialogo_pronto(videoscritt& v) {
  v.CommonDialog1.Filter = "Documento di testo (*.RTF)|*.RTF|Tutti i file (*.*)|*.*";
  v.CommonDialog1.FilterIndex = 1;
  v.CommonDialog1.FileName.clear();
  return v.CommonDialog1;
}

void prendi_nome(videoscritt& v, const std::string& nome) {
  v.nomedocumento = nome;
  v.RichTextBox1.FileName = nome;
  v.Caption = titolo_file(nome);
  v.testomodificato = 0;
}

// The name counts only when the text is under it.
void salva(videoscritt& v, const std::string& nome) {
  try {
    v.RichTextBox1.SaveFile(nome);
  } catch (const RuntimeError&) {
    return;
  } catch (const std::bad_alloc&) {
    return;
  }
  prendi_nome(v, nome);
}

void salva_con_nome(videoscritt& v) {
  CommonDialog& dialogo = dialogo_pronto(v);
  for (;;) {
    if (!v.desktop.show_save(dialogo)) return;
    const std::string nome = dialogo.FileName;
    std::error_code ignorato;
    if (std::filesystem::exists(nome, ignorato)) {
      const int risposta =
          v.desktop.message_box("File \"" + nome + "\"  Esiste - Sovrapporre?", Buttons::yes_no_cancel);
      if (risposta == answer_no) continue;
      if (risposta != answer_yes) return;
    }
    salva(v, nome);
    return;
  }
}

}  // namespace

std::string titolo_nuovo(const std::string& nome) { return std::string(" [ ") + programma + "\"" + nome + "\"] "; }

std::string titolo_file(const std::string& nome) {
  return std::string("[Nome File:  ") + programma + "\"" + nome + "\" ]";
}

void nuova_relazione(videoscritt& v) {
  v.nomedocumento = senza_nome_relazione;
  v.RichTextBox1.FileName = std::string();
  v.RichTextBox1.Text = std::string();
  v.Caption = titolo_nuovo(v.nomedocumento);
  v.testomodificato = 0;
}

void apri_file(videoscritt& v, const std::string& nome) {
  bool letto = false;
  try {
    v.RichTextBox1.LoadFile(nome);
    letto = true;
  } catch (const RuntimeError&) {
  } catch (const std::bad_alloc&) {
  }
  if (letto) {
    prendi_nome(v, nome);
  } else {
    v.desktop.message_box("File: \"" + nome + "\" inesistente o non leggibile dal programma", Buttons::ok);
  }
}

void aprisalva(videoscritt& v, const std::string& comando) {
  if (comando == "Apri") {
    CommonDialog& dialogo = dialogo_pronto(v);
    if (v.desktop.show_open(dialogo)) apri_file(v, dialogo.FileName);
  } else if (comando == "Salva" && v.nomedocumento != senza_nome_relazione) {
    salva(v, v.nomedocumento);
  } else {
    salva_con_nome(v);
  }
}

bool salva_modifiche(videoscritt& v) {
  const int risposta =
      v.desktop.message_box("Salvare le modifiche al file: \"" + v.nomedocumento + "\"", Buttons::yes_no_cancel);
  if (risposta == answer_no) return true;
  if (risposta != answer_yes) return false;
  aprisalva(v, v.nomedocumento == senza_nome_relazione ? "SalvaConNome" : "Salva");
  // What could not be saved is not to be lost now.
  return v.testomodificato == 0;
}

}  // namespace trelvo
