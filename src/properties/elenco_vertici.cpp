#include "properties/elenco_vertici.h"

#include <algorithm>

#include "platform/numbers.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr int decimali_coordinata = 3;
constexpr int vertici_minimi = 2;

const char* const registra_modifica = "Registra Modifica";
const char* const registra_nuovo = "Registra";
const char* const conferma_elimina = "Conferma Elimina";

struct azione_vertice {
  const char* pulsante;
  std::string cornice;
  int riga;  // of the lists, from 0
};

// Both lists move together, and what is chosen says what can be done with it.
void List1_Click(elencoform& e, int lista) {
  const int riga = e.List1(lista).ListIndex;
  e.List1(1 - lista).ListIndex = riga;
  e.Command3.Enabled = true;
  e.Command6.Enabled = true;
  e.Command7.Enabled = e.List1(0).ListCount > vertici_minimi;
}

void togli(elencoform& e, int riga) {
  for (int i = 0; i <= 1; ++i) e.List1(i).RemoveItem(riga);
}

std::string riga_di(const trelvobas& bas, const TextBox& casella) {
  return right_aligned(coordinata(bas, coordinata_di(bas, casella)));
}

void scegli_riga(elencoform& e, int riga) {
  for (int i = 0; i <= 1; ++i) e.List1(i).ListIndex = -1;
  const int ultima = e.List1(0).ListCount - 1;
  e.List1(0).ListIndex = std::min(riga, ultima);
}

void esegui_azione(const trelvobas& bas, elencoform& e, const azione_vertice& a) {
  if (a.pulsante == conferma_elimina) {
    togli(e, a.riga);
  } else {
    const std::string x = riga_di(bas, bas.CoordVert.Text1);
    const std::string y = riga_di(bas, bas.CoordVert.Text2);
    if (a.pulsante == registra_modifica) togli(e, a.riga);
    e.List1(0).AddItem(x, a.riga);
    e.List1(1).AddItem(y, a.riga);
  }
  scegli_riga(e, a.riga);
}

void chiedi_vertice(trelvobas& bas, elencoform& e, const azione_vertice& a, const std::function<void()>& dopo) {
  CoordVertForm& f = bas.CoordVert;
  f.azzera();
  f.Caption = e.Frame5.Caption;
  f.Frame4.Caption = a.cornice;
  f.Command1.Caption = a.pulsante;
  if (a.pulsante != registra_nuovo) {
    f.Text1.Text = trimmed(e.List1(0).List(a.riga));
    f.Text2.Text = trimmed(e.List1(1).List(a.riga));
  }
  for (TextBox* casella : {&f.Text1, &f.Text2}) casella->Locked = a.pulsante == conferma_elimina;
  mostra_CoordVert(bas, [&bas, &e, a, dopo] {
    esegui_azione(bas, e, a);
    dopo();
  });
}

// Nothing can be done with a row while none is chosen.
bool senza_riga(const elencoform& e, Button& pulsante) {
  if (e.List1(0).ListIndex >= 0) return false;
  pulsante.Enabled = false;
  return true;
}

std::string numero_riga(int riga) { return number_text(static_cast<double>(riga + 1)); }

void Command3_Click(trelvobas& bas, elencoform& e, const std::function<void()>& dopo) {
  if (senza_riga(e, e.Command3)) return;
  const int riga = e.List1(0).ListIndex;
  chiedi_vertice(bas, e, {registra_modifica, "Coordinate Vertice N." + numero_riga(riga), riga}, dopo);
}

void Command6_Click(trelvobas& bas, elencoform& e, const std::function<void()>& dopo) {
  const int riga = e.List1(0).ListIndex;
  const std::string cornice =
      riga < 0 ? "Inserisci Vertice Prima del N. 1" : "Inserisci Vertice dopo il N." + numero_riga(riga);
  chiedi_vertice(bas, e, {registra_nuovo, cornice, riga + 1}, dopo);
}

void Command7_Click(trelvobas& bas, elencoform& e, const std::function<void()>& dopo) {
  if (senza_riga(e, e.Command7)) return;
  const int riga = e.List1(0).ListIndex;
  chiedi_vertice(bas, e, {conferma_elimina, "Coordinate Vertice N." + numero_riga(riga), riga}, dopo);
}

bool numeri_validi(const trelvobas& bas) {
  const RegionalFormat formato = bas.desktop.regional();
  const CoordVertForm& f = bas.CoordVert;
  for (const TextBox* casella : {&f.Text1, &f.Text2, &f.Text3}) {
    if (casella->Visible && !is_regional_number(casella->Text.get(), formato)) return false;
  }
  return true;
}

void conferma_CoordVert(trelvobas& bas) {
  CoordVertForm& f = bas.CoordVert;
  if (f.Command1.Caption.get() != conferma_elimina && !numeri_validi(bas)) {
    bas.desktop.beep();
    bas.desktop.message_box("Inserire coordinate con formato numerico corretto", Buttons::ok);
    return;
  }
  f.registra();
  f.unload();
}

}  // namespace

std::string coordinata(const trelvobas& bas, double valore) {
  return fixed_text(valore, decimali_coordinata, bas.desktop.regional());
}

double coordinata_di(const trelvobas& bas, const TextBox& casella) {
  return regional_number(casella.Text.get(), bas.desktop.regional());
}

std::function<void(int& codice)> tasto_coordinata(trelvobas& bas, std::function<Control*()> prossimo) {
  return [&bas, prossimo = std::move(prossimo)](int& codice) {
    if (codice == '.') codice = static_cast<unsigned char>(to_code_page(bas.desktop.regional().decimal).front());
    if (codice != key_enter) return;
    codice = 0;
    bas.desktop.set_focus(prossimo());
  };
}

void mostra_CoordVert(trelvobas& bas, std::function<void()> azione) {
  bas.CoordVert.registra = std::move(azione);
  bas.desktop.show_modal(bas.CoordVert);
}

void prepara_CoordVert(trelvobas& bas) {
  CoordVertForm& f = bas.CoordVert;
  f.Text1.KeyPress = tasto_coordinata(bas, [&f] { return &f.Text2; });
  f.Text2.KeyPress = tasto_coordinata(
      bas, [&f] { return f.Text3.Visible ? static_cast<Control*>(&f.Text3) : static_cast<Control*>(&f.Command1); });
  f.Text3.KeyPress = tasto_coordinata(bas, [&f] { return &f.Command1; });
  f.Command1.Click = [&bas] { conferma_CoordVert(bas); };
  f.Command2.Click = [&f] { f.unload(); };
}

void prepara_elenco(trelvobas& bas, elencoform& e, const std::function<void()>& dopo) {
  for (int i = 0; i <= 1; ++i) {
    e.List1(i).Click = [&e, i] { List1_Click(e, i); };
    e.List1(i).TopIndex.on_change([&e, i] { e.List1(1 - i).TopIndex = e.List1(i).TopIndex; });
  }
  e.Command3.Click = [&bas, &e, dopo] { Command3_Click(bas, e, dopo); };
  e.Command6.Click = [&bas, &e, dopo] { Command6_Click(bas, e, dopo); };
  e.Command7.Click = [&bas, &e, dopo] { Command7_Click(bas, e, dopo); };
}

void riempi_elenco(const trelvobas& bas, elencoform& e, std::span<const vertice> vertici) {
  for (int i = 0; i <= 1; ++i) e.List1(i).Clear();
  for (const vertice& v : vertici) {
    e.List1(0).AddItem(right_aligned(coordinata(bas, v.x)));
    e.List1(1).AddItem(right_aligned(coordinata(bas, v.y)));
  }
}

std::vector<vertice> vertici_di(const trelvobas& bas, const elencoform& e) {
  const RegionalFormat formato = bas.desktop.regional();
  const int numero = round_to_int16(e.List1(0).ListCount);
  std::vector<vertice> vertici;
  vertici.reserve(static_cast<std::size_t>(numero));
  for (int i = 0; i < numero; ++i) {
    vertici.push_back({regional_number(e.List1(0).List(i), formato), regional_number(e.List1(1).List(i), formato)});
  }
  return vertici;
}

}  // namespace trelvo
