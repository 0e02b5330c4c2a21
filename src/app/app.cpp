#include "app/app.h"

#include <vector>

#include "app/barre.h"
#include "app/file.h"
#include "app/finestra.h"
#include "app/frame.h"
#include "app/menu.h"
#include "app/riga_comando.h"
#include "commands/comando.h"
#include "commands/impost.h"
#include "commands/impostazioni.h"
#include "commands/motore.h"
#include "edit/edit.h"
#include "files/ini.h"
#include "files/txt_documento.h"
#include "printing/stampa.h"
#include "properties/proprieta.h"
#include "view/croce.h"

namespace trelvo {

namespace {

void collega_frame(trelvobas& bas) {
  frmMainForm& f = bas.frmMain;
  for (const auto& [indice, strumenti] : f.Toolbar1.items()) {
    strumenti->ButtonClick = [&bas, i = indice](int pulsante) { Toolbar1_ButtonClick(bas, i, pulsante); };
  }
  for (const auto& [indice, voce] : f.gestfile.items()) {
    voce->Click = [&bas, i = indice] { gestfile_Click(bas, i); };
  }
  const auto interruttore = [&bas](int indice) {
    return [&bas, indice] {
      if (bas.attivo() != nullptr) impaiut(*bas.attivo(), indice);
    };
  };
  f.Label8.Click = interruttore(4);
  f.Label9.Click = interruttore(5);
  f.Label10.Click = interruttore(6);
  f.Label11.Click = [&bas] { Label11_Click(bas); };

  f.Text1.KeyPress = [&bas](int& codice) { Text1_KeyPress(bas, codice); };
  f.Text2.KeyPress = [&bas](int& codice) { Text2_KeyPress(bas, codice); };
  const auto tasto = [&bas](int codice) {
    if (codice == key_f9) Label11_Click(bas);
  };
  f.Text1.KeyDown = tasto;
  f.Text2.KeyDown = tasto;
  for (Control* c : std::vector<Control*>{&f.Label1, &f.Text1, &f.Picture1, &f.CoolBar1}) {
    c->MouseMove = [&bas] { nascondilinee_cursore(bas); };
  }
}

}  // namespace

void prepara(trelvobas& bas) {
  bas.salvafileini_dis = [](distipo& doc) { salvafileini_dis(doc); };
  aggiungi_comandi(bas);
  aggiungi_modifiche(bas);
  collega_frame(bas);
  prepara_zoomp(bas);
  prepara_impost(bas);
  prepara_barprog(bas);
  prepara_proprieta(bas);
  prepara_stampa(bas);
}

void Main(trelvobas& bas, const std::string& riga) {
  bas.desktop.MousePointer = pointer_hourglass;
  bas.desktop.MousePointer = pointer_default;
  bas.desktop.show_frame(bas.frmMain);
  MDIForm_Load(bas, riga);
}

void fine_evento(trelvobas& bas) {
  run_event(bas.desktop, [&] { richiama_stampa(bas); });
  if (bas.eventi == 0) bas.chiusi.clear();
}

void attivata(trelvobas& bas, distipo& doc) {
  distipo* prima = bas.attivo();
  if (prima == &doc) return;
  // The dialog of printing belongs to the document that it was opened for.
  if (prima != nullptr && bas.Geststamp.WindowState == window_minimised) bas.Geststamp.unload();
  // The window comes to the front whatever the one behind has to tell.
  if (prima != nullptr) run_event(bas.desktop, [&] { Form_Deactivate(*prima); });
  std::erase(bas.ordine, &doc);
  bas.ordine.push_back(&doc);
  Form_Activate(doc);
}

bool chiudi(distipo& doc) {
  if (doc.cmd.modificato == 1 && doc.bas.attivo() != &doc) doc.bas.desktop.activate_window(doc);
  bool rifiuta = false;
  Form_QueryUnload(doc, rifiuta);
  if (rifiuta) return false;
  Form_Unload(doc);
  return true;
}

bool chiudi_frame(trelvobas& bas) {
  std::vector<distipo*> aperti;
  for (const auto& finestra : bas.finestredocumenti) {
    if (finestra) aperti.push_back(finestra.get());
  }
  bas.ndocumentichiusura = bas.ndocumenti;
  // All are asked before any goes; a refusal or a failure keeps all of them.
  const int prima = bas.ndocumenti;
  const auto rimetti = [&] {
    bas.ndocumenti = prima;
    bas.ndocumentichiusura = 0;
  };
  try {
    for (distipo* doc : aperti) {
      if (doc->cmd.modificato == 1 && bas.attivo() != doc) bas.desktop.activate_window(*doc);
      bool rifiuta = false;
      Form_QueryUnload(*doc, rifiuta);
      if (rifiuta) {
        rimetti();
        return false;
      }
    }
  } catch (...) {
    rimetti();
    throw;
  }
  bas.ndocumentichiusura = 0;
  bas.ndocumenti = 0;
  for (distipo* doc : aperti) {
    bas.ordine.clear();
    Form_Unload(*doc);
  }
  bas.cur = cursori{};
  return true;
}

void ridimensiona(distipo& doc, float larghezza, float altezza) {
  doc.surface.resize(larghezza, altezza);
  Form_Resize(doc);
}

void Picture3_MouseMove(distipo& doc) {
  doc.MousePointer = pointer_default;
  mostra_croce(doc, false);
}

void Picture4_MouseMove(distipo& doc) { Picture3_MouseMove(doc); }

void MDIForm_MouseMove(trelvobas& bas) {
  if (bas.ndocumenti != 0) nascondilinee_cursore(bas);
}

void Form_KeyPress(distipo& doc, int KeyAscii) { gestastiera(doc, KeyAscii); }

namespace {

MenuItem* voce_del_tasto(const std::vector<MenuItem*>& voci, int codice) {
  for (MenuItem* voce : voci) {
    if (voce->shortcut == codice) return voce;
    if (MenuItem* sotto = voce_del_tasto(voce->items, codice)) return sotto;
  }
  return nullptr;
}

}  // namespace

void Form_KeyDown(distipo& doc, int KeyCode) {
  if (KeyCode == key_f9) {
    impfiltri(doc, filtro_successivo(doc.filtro.filtroattivo));
  } else if (MenuItem* voce = voce_del_tasto(doc.menus, KeyCode)) {
    scegli(*voce);
  }
}

bool scegli(MenuItem& voce) {
  for (MenuItem* sopra = voce.parent; sopra != nullptr; sopra = sopra->parent) {
    if (sopra->parent == nullptr && sopra->Click) sopra->Click();
  }
  for (const MenuItem* v = &voce; v != nullptr; v = v->parent) {
    if (!v->Enabled || !v->Visible) return false;
  }
  if (voce.Caption.get() == "-" || !voce.items.empty() || !voce.Click) return false;
  voce.Click();
  return true;
}

}  // namespace trelvo
