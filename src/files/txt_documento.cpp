#include "files/txt_documento.h"

#include <utility>

#include "commands/prompt.h"
#include "commands/zoom.h"
#include "files/accesso_file.h"
#include "files/comandi_file.h"
#include "files/impostazioni_lette.h"
#include "files/txt_lettura.h"
#include "model/tavolozza.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

constexpr const char* da_leggere = "Leggi TXT";
constexpr int voce_zoom_tutto = 2;

// A document while a text file is read into it. When it goes, the document has no name and no change to be saved, and
// what was begun and not kept is undone.
class importazione {
 public:
  explicit importazione(distipo& doc) : doc_(doc), file_(doc.Caption), prima_(doc.imp) {}
  importazione(const importazione&) = delete;
  importazione& operator=(const importazione&) = delete;
  ~importazione() {
    if (cambiata_) rimetti_impostazioni(doc_, prima_, ignorato_);
    ignorato_.prova([&] { togli_nome(); });
    doc_.cmd.modificato = 0;
  }

  void imposta(const impostazionilette& lette, errorerimandato& errore) {
    cambiata_ = true;
    prendi_impostazioni(doc_, lette, errore);
  }
  void tieni() { cambiata_ = false; }

  // The lists of open names forget the file, so that it can be read again.
  void togli_nome() {
    const std::string titolo = titolo_senza_nome(doc_.numero);
    auto& nomi = doc_.bas.nomidocumenti;
    if (nomi.size() <= static_cast<std::size_t>(doc_.numero)) nomi.resize(static_cast<std::size_t>(doc_.numero) + 1);
    for (std::string& nome : nomi) {
      if (nome == file_) nome = titolo;
    }
    nomi[static_cast<std::size_t>(doc_.numero)] = titolo;
    doc_.Caption = titolo;
  }

 private:
  distipo& doc_;
  std::string file_;
  impostazioni prima_;
  bool cambiata_ = false;
  errorerimandato ignorato_;
};

void mostra_avanzamento(distipo& doc, double parte) {
  ProgressBar& barra = doc.bas.barprog.ProgressBar1;
  barra.Value = static_cast<float>(parte * barra.Max);
  doc.bas.desktop.process_events();
}

void leggi_file(distipo& doc, importazione& in_corso, errorerimandato& errore) {
  fileaperto file(doc.Caption, fileaperto::modo::lettura);
  righetxt righe([&](std::span<std::byte> dove) { return file.leggi(dove); });
  in_corso.imposta(leggi_testata_txt(righe), errore);
  // The repaint put the pointer back.
  doc.bas.desktop.MousePointer = pointer_hourglass;
  avanzamento letto(file.lunghezza(), [&](double parte) { mostra_avanzamento(doc, parte); });
  disegno dis;
  const bool riconosciuti = leggi_oggetti_txt(righe, doc.bas.desktop.regional(), letto, dis);
  doc.dis = std::move(dis);
  doc.salvata = doc.dis.revisione();
  if (riconosciuti) doc.cmd.statooggetti = 1;
  in_corso.tieni();
}

}  // namespace

void leggitxt(distipo& doc) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  importazione in_corso(doc);
  errorerimandato errore;
  leggi_file(doc, in_corso, errore);
  doc.surface.BackColor = tavolozza(doc.imp.coloresfondo.valore);
  errore.prova([&] { redraw(doc); });
  scrivilabel1(doc);
  in_corso.togli_nome();
  doc.WindowState = window_maximised;
  if (doc.cmd.statooggetti == 1) errore.prova([&] { selezoom_Click(doc, voce_zoom_tutto); });
  errore.rilancia();
}

void importa(distipo& doc) {
  barprogForm& b = doc.bas.barprog;
  b.Label1.Caption = da_leggere;
  doc.bas.desktop.show_modal(b);
}

void prepara_barprog(trelvobas& bas) {
  barprogForm& b = bas.barprog;
  const auto Timer1_Timer = [&bas, &b] {
    if (b.lavoro) b.lavoro();
    if (b.Label1.Caption.get() == da_leggere && bas.attivo() != nullptr) leggitxt(*bas.attivo());
  };
  b.Shown = [Timer1_Timer, &b] {
    // The window goes whatever the import brings.
    try {
      Timer1_Timer();
    } catch (...) {
      b.unload();
      throw;
    }
    b.unload();
  };
  // Only the end of the import closes it.
  b.QueryUnload = [](bool& cancel) { cancel = true; };
  b.Unloaded = [&b] {
    b.Label1.Caption = "";
    b.Caption = barprogForm::titolo_importo;
    b.lavoro = {};
    b.ProgressBar1.Value = 0;
  };
}

}  // namespace trelvo
