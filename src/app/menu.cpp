#include "app/menu.h"

#include "app/barre.h"
#include "app/file.h"
#include "commands/comando.h"
#include "commands/impostazioni.h"
#include "commands/modifica.h"
#include "commands/motore.h"
#include "commands/zoom.h"
#include "files/bmp_comando.h"
#include "files/dxf_comando.h"
#include "platform/numbers.h"
#include "properties/gesttesto.h"
#include "properties/tipolinea.h"
#include "properties/tiposuperficie.h"

namespace trelvo {

namespace {

constexpr int beep_percentuale = 6;
constexpr int percentuale_iniziale = 100;

bool disegno_vuoto(const distipo& doc) { return doc.cmd.statooggetti != 1 && doc.cmd.statotesti != 1; }

void file_Click(distipo& doc) {
  doc.opfile(3).Enabled = !disegno_vuoto(doc);
  doc.opfile(4).Enabled = !disegno_vuoto(doc);
}

void visual_Click(distipo& doc) {
  for (int i = 1; i <= 4; ++i) doc.selezoom(i).Enabled = !disegno_vuoto(doc);
}

void mnuedita_Click(distipo& doc) {
  for (int i = 3; i <= 9; ++i) {
    doc.modifica(i).Enabled = !disegno_vuoto(doc);
  }
  doc.modifica(1).Enabled = doc.cmd.comando() != "Stira" && doc.cmd.passo == 0;
}

template <class Azione>
void collega_voci(distipo& doc, ControlArray<MenuItem>& menu, Azione azione) {
  for (const auto& [indice, voce] : menu.items()) {
    if (voce->Caption.get() == "-") continue;
    voce->Click = [&doc, azione, i = indice] { azione(doc, i); };
  }
}

void help_Click(distipo& doc) {
  doc.bas.desktop.message_box("Help non disponibile. In fase di completamento.", Buttons::ok);
}

void informa_Click(distipo& doc) { doc.bas.desktop.message_box(doc.bas.frmMain.Caption, Buttons::ok); }

void conferma_zoomp(trelvobas& bas) {
  zoompForm& z = bas.zoomp;
  if (numeric_prefix(z.Text1.Text.get()) <= 0) {
    for (int i = 0; i < beep_percentuale; ++i) bas.desktop.beep();
    return;
  }
  z.Visible = false;
  // The dialog goes whatever the zoom brings.
  try {
    if (bas.attivo() != nullptr) zoomperc(*bas.attivo(), z.Text1.Text);
  } catch (...) {
    z.unload();
    throw;
  }
  z.unload();
}

void mostra_percentuale(zoompForm& z) { z.Text1.Text = std::to_string(z.VScroll1.Value.get()) + "%"; }

}  // namespace

void scegli_zoom(distipo& doc, int Index) {
  selezoom_Click(doc, Index);
  if (Index != 4) return;
  doc.bas.desktop.show_modal(doc.bas.zoomp);
  impfiltri(doc, doc.filtro.filtroattivo);
  ripristinatrasparente(doc);
}

void prepara_zoomp(trelvobas& bas) {
  zoompForm& z = bas.zoomp;
  z.Load = [&z] {
    z.VScroll1.Value = percentuale_iniziale;
    mostra_percentuale(z);
  };
  z.VScroll1.Value.on_change([&z] { mostra_percentuale(z); });
  z.Text1.KeyPress = [&bas](int& codice) {
    if (codice != key_enter) return;
    codice = 0;
    conferma_zoomp(bas);
  };
  z.Command1.Click = [&bas] { conferma_zoomp(bas); };
  z.Command2.Click = [&z] { z.unload(); };
}

void collega(distipo& doc) {
  doc.file.Click = [&doc] { file_Click(doc); };
  doc.visual.Click = [&doc] { visual_Click(doc); };
  doc.mnuedita.Click = [&doc] { mnuedita_Click(doc); };
  collega_voci(doc, doc.opfile, opfile_Click);
  collega_voci(doc, doc.opdis, opdis_Click);
  collega_voci(doc, doc.selezoom, scegli_zoom);
  collega_voci(doc, doc.barre, barre_Click);
  collega_voci(doc, doc.modifica, modifica_Click);
  collega_voci(doc, doc.impo, impo_Click);
  collega_voci(doc, doc.aiutdis, impaiut);
  collega_voci(doc, doc.filtri, impfiltri);
  doc.mnutipolinea->Click = [&doc] { mnutipolinea_Click(doc); };
  doc.mnutiposup->Click = [&doc] { mnutiposup_Click(doc); };
  doc.mnutipotesto->Click = [&doc] { mnutipotesto_Click(doc); };
  doc.mnucreabmp.Click = [&doc] { creabmp(doc); };
  doc.mnudxf.Click = [&doc] { crea_dxf(doc); };
  doc.mnudistanza.Click = [&doc] { mnudistanza_Click(doc); };
  doc.help.Click = [&doc] { help_Click(doc); };
  doc.informa.Click = [&doc] { informa_Click(doc); };
  doc.HScroll1.Value.on_change([&doc] { HScroll1_Change(doc); });
  doc.VScroll1.Value.on_change([&doc] { VScroll1_Change(doc); });
}

}  // namespace trelvo
