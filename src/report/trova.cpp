#include "report/trova.h"

#include "report/caratteri.h"
#include "report/ricerca.h"
#include "report/videoscritt.h"

namespace trelvo {

namespace {

ricerca richiesta(const trovaForm& t) { return {ripulito(da_utf8(t.Text1.Text.get())), t.Check1.Value != 0}; }

std::u32string sostituto(const trovaForm& t) { return ripulito(da_utf8(t.Text2.Text.get())); }

std::u32string_view selezionato(const RichTextBox& testo) {
  return std::u32string_view(testo.documento().testo()).substr(testo.inizio(), testo.lunghezza());
}

void non_trovato(videoscritt& v) {
  v.desktop.message_box("Testo \"" + v.trova.Text1.Text.get() + "\" non trovato", Buttons::ok);
}

// From the selection on, then from the beginning.
void trova_successivo(videoscritt& v) {
  const ricerca cosa = richiesta(v.trova);
  const std::u32string& testo = v.RichTextBox1.documento().testo();
  std::size_t posto = trova_da(testo, cosa, v.RichTextBox1.inizio() + v.RichTextBox1.lunghezza());
  if (posto == std::u32string::npos) posto = trova_da(testo, cosa, 0);
  if (posto == std::u32string::npos) {
    non_trovato(v);
  } else {
    v.RichTextBox1.seleziona(posto, cosa.cercato.size());
  }
}

void sostituisci(videoscritt& v) {
  if (corrisponde(selezionato(v.RichTextBox1), richiesta(v.trova))) v.RichTextBox1.scrivi(sostituto(v.trova));
  trova_successivo(v);
}

void sostituisci_tutto(videoscritt& v) {
  const ricerca cosa = richiesta(v.trova);
  const std::vector<std::size_t> posti = trova_tutti(v.RichTextBox1.documento().testo(), cosa);
  if (posti.empty()) {
    non_trovato(v);
    return;
  }
  v.RichTextBox1.sostituisci(posti, cosa.cercato.size(), sostituto(v.trova));
  v.desktop.message_box("Sostituzioni: " + std::to_string(posti.size()), Buttons::ok);
}

void apri(videoscritt& v) {
  const std::u32string_view scelto = selezionato(v.RichTextBox1);
  const bool di_una_riga = scelto.find_first_of(std::u32string{fine_paragrafo, a_capo}) == std::u32string_view::npos;
  if (!scelto.empty() && di_una_riga) v.trova.Text1.Text = in_utf8(scelto);
  v.desktop.set_focus(&v.trova.Text1);
}

}  // namespace

void prepara_trova(videoscritt& v) {
  trovaForm& t = v.trova;
  t.Shown = [&v] { apri(v); };
  const auto abilita = [&t] {
    const bool cercabile = !t.Text1.Text.get().empty();
    for (Button* pulsante : {&t.Command1, &t.Command2, &t.Command3}) pulsante->Enabled = cercabile;
  };
  t.Text1.Text.on_change(abilita);
  abilita();
  t.Command1.Click = [&v] { trova_successivo(v); };
  t.Command2.Click = [&v] { sostituisci(v); };
  t.Command3.Click = [&v] { sostituisci_tutto(v); };
  t.Command4.Click = [&t] { t.unload(); };
}

}  // namespace trelvo
