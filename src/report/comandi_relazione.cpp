// What the menus and the tool bar of the report editor do.
#include <array>
#include <filesystem>

#include "report/aprisalva.h"
#include "report/caratteri.h"
#include "report/videoscritt.h"

namespace trelvo {

namespace {

constexpr int rientro_elenco = 360;
constexpr int voce_elenco = 6;

// A line break is an end of line to other programs.
void copia(videoscritt& v) {
  std::u32string testo(v.RichTextBox1.documento().testo(), v.RichTextBox1.inizio(), v.RichTextBox1.lunghezza());
  std::replace(testo.begin(), testo.end(), a_capo, fine_paragrafo);
  v.desktop.set_clipboard_text(in_utf8(testo));
}

void carattere_Click(videoscritt& v) {
  RichTextBox& testo = v.RichTextBox1;
  FontDialog dialogo;
  dialogo.FontName = testo.SelFontName.get();
  dialogo.FontSize = testo.SelFontSize;
  dialogo.FontBold = testo.SelBold;
  dialogo.FontItalic = testo.SelItalic;
  dialogo.FontUnderline = testo.SelUnderline;
  dialogo.FontStrikethru = testo.SelStrikeThru;
  dialogo.color = testo.SelColor;
  dialogo.asks_color = false;
  if (!v.desktop.show_font(dialogo)) return;
  testo.SelFontName = dialogo.FontName;
  testo.SelFontSize = dialogo.FontSize;
  testo.SelBold = dialogo.FontBold;
  testo.SelItalic = dialogo.FontItalic;
  testo.SelUnderline = dialogo.FontUnderline;
  testo.SelStrikeThru = dialogo.FontStrikethru;
}

void mnucolor_Click(videoscritt& v) {
  Color colore = v.RichTextBox1.SelColor;
  if (v.desktop.show_color_titled(colore, "Select Color")) v.RichTextBox1.SelColor = colore;
}

void sfondo_Click(videoscritt& v) {
  Color colore = v.RichTextBox1.BackColor;
  if (v.desktop.show_color_titled(colore, "Seleziona Colore")) v.RichTextBox1.BackColor = colore;
}

// Sets the offset, or takes it away where it is there.
void scosta(videoscritt& v, int twip) {
  LinkedProperty<int>& scostamento = v.RichTextBox1.SelCharOffset;
  scostamento = scostamento == twip ? 0 : twip;
}

template <LinkedProperty<bool> RichTextBox::*quale>
void inverti(videoscritt& v) {
  LinkedProperty<bool>& qualita = v.RichTextBox1.*quale;
  qualita = !qualita;
}

template <LinkedProperty<bool> RichTextBox::*quale>
bool vale(const videoscritt& v) {
  return v.RichTextBox1.*quale;
}

template <int valore>
bool allineato(const videoscritt& v) {
  return v.RichTextBox1.SelAlignment == valore;
}

template <int twip>
bool scostato(const videoscritt& v) {
  return v.RichTextBox1.SelCharOffset == twip;
}

// One row a button, an empty one for a separator.
struct rigapulsante {
  const char* nome;
  const char* icona;
  void (*premi)(videoscritt&);
  bool (*stato)(const videoscritt&);  // nullptr for a button that stays up
  int tasto = 0;
};

const rigapulsante pulsanti[] = {
    {"Nuovo", "nuovo", [](videoscritt& v) { file_Click(v, 1); }, nullptr},
    {"Apri", "apri", [](videoscritt& v) { file_Click(v, 2); }, nullptr},
    {"Salva", "salva", [](videoscritt& v) { file_Click(v, 3); }, nullptr},
    {},
    {"Taglia", "taglia", [](videoscritt& v) { modifi_Click(v, 2); }, nullptr},
    {"Copia", "copia", [](videoscritt& v) { modifi_Click(v, 1); }, nullptr},
    {"Incolla", "incolla", [](videoscritt& v) { modifi_Click(v, 3); }, nullptr},
    {},
    {"Carattere", "testo", carattere_Click, nullptr},
    {"Grassetto", "grassetto", inverti<&RichTextBox::SelBold>, vale<&RichTextBox::SelBold>, key_control + 'B'},
    {"Corsivo", "corsivo", inverti<&RichTextBox::SelItalic>, vale<&RichTextBox::SelItalic>, key_control + 'I'},
    {"Sottolineato", "sottolineato", inverti<&RichTextBox::SelUnderline>, vale<&RichTextBox::SelUnderline>,
     key_control + 'U'},
    {"Barrato", "barrato", inverti<&RichTextBox::SelStrikeThru>, vale<&RichTextBox::SelStrikeThru>, key_control + 'K'},
    {},
    {"Allinea a Sinistra", "allinea_sinistra", [](videoscritt& v) { allinea_Click(v, 1); }, allineato<0>},
    {"Centra", "centra", [](videoscritt& v) { allinea_Click(v, 2); }, allineato<2>},
    {"Allinea a Destra", "allinea_destra", [](videoscritt& v) { allinea_Click(v, 3); }, allineato<1>},
    {},
    {"Elenco Puntato", "elenco", [](videoscritt& v) { allinea_Click(v, voce_elenco); }, vale<&RichTextBox::SelBullet>},
    {},
    {"Apice", "apice", [](videoscritt& v) { scosta(v, scostamento_apice); }, scostato<scostamento_apice>},
    {"Pedice", "pedice", [](videoscritt& v) { scosta(v, scostamento_pedice); }, scostato<scostamento_pedice>},
};

void collega_pulsanti(videoscritt& v) {
  int indice = 0;
  for (const rigapulsante& riga : pulsanti) {
    ++indice;
    if (riga.nome == nullptr) continue;
    pulsante& nuovo = v.Toolbar1.add(v, "Toolbar1", indice, riga.nome, riga.icona, riga.stato != nullptr, riga.tasto);
    nuovo.Click = [&v, &riga] {
      riga.premi(v);
      statopulsanti(v);
    };
  }
}

void Form_Load(videoscritt& v) {
  std::error_code ignorato;
  std::filesystem::current_path(v.cartella, ignorato);
  nuova_relazione(v);
  v.WindowState = window_maximised;
  statopulsanti(v);
}

void Form_QueryUnload(videoscritt& v, bool& Cancel) {
  if (v.testomodificato != 1) return;
  v.desktop.beep();
  Cancel = !salva_modifiche(v);
}

void collega_voci(videoscritt& v, const ControlArray<MenuItem>& menu, void (*azione)(videoscritt&, int)) {
  for (const auto& [indice, voce] : menu.items()) {
    if (voce->Caption.get() == "-") continue;
    voce->Click = [&v, azione, i = indice] { azione(v, i); };
  }
}

}  // namespace

void statopulsanti(videoscritt& v) {
  for (const auto& [indice, tasto] : v.Toolbar1.items()) {
    const rigapulsante& riga = pulsanti[static_cast<std::size_t>(indice) - 1];
    if (riga.stato != nullptr) tasto->Value = riga.stato(v);
  }
  v.allinea(voce_elenco).Checked = v.RichTextBox1.SelBullet;
}

void file_Click(videoscritt& v, int Index) {
  const auto confermato = [&v] { return v.testomodificato != 1 || salva_modifiche(v); };
  switch (Index) {
    case 1:
      nuova_relazione(v);
      break;
    case 2:
      if (confermato()) aprisalva(v, "Apri");
      break;
    case 3:
      aprisalva(v, "Salva");
      break;
    case 4:
      aprisalva(v, "SalvaConNome");
      break;
    case 5:
      if (confermato()) nuova_relazione(v);
      break;
    case 7:
      v.close();
      break;
    default:
      break;
  }
}

void modifi_Click(videoscritt& v, int Index) {
  RichTextBox& testo = v.RichTextBox1;
  switch (Index) {
    case 1:
      copia(v);
      break;
    case 2:
      copia(v);
      testo.SelText = std::string();
      break;
    case 3:
      testo.SelText = v.desktop.clipboard_text();
      break;
    case 5:
      v.desktop.show_modal(v.trova);
      break;
    case 7:
      testo.seleziona(0, testo.documento().lunghezza());
      break;
    default:
      break;
  }
}

void allinea_Click(videoscritt& v, int Index) {
  static constexpr std::array allineamenti{0, 2, 1};
  RichTextBox& testo = v.RichTextBox1;
  if (Index >= 1 && Index <= 3) {
    testo.SelAlignment = allineamenti[static_cast<std::size_t>(Index) - 1];
  } else if (Index == voce_elenco) {
    Property<bool>& segnata = v.allinea(voce_elenco).Checked;
    segnata = !segnata;
    if (segnata) testo.BulletIndent = rientro_elenco;
    testo.SelBullet = segnata;
  } else {
    v.desktop.show_modal(v.rientri);
  }
  statopulsanti(v);
}

void collega_videoscritt(videoscritt& v) {
  collega_pulsanti(v);
  collega_voci(v, v.file, file_Click);
  collega_voci(v, v.modifi, modifi_Click);
  collega_voci(v, v.allinea, allinea_Click);
  v.carattere.Click = [&v] { carattere_Click(v); };
  v.mnucolor.Click = [&v] { mnucolor_Click(v); };
  v.apice.Click = [&v] { scosta(v, scostamento_apice); };
  v.pedice.Click = [&v] { scosta(v, scostamento_pedice); };
  v.sfondo.Click = [&v] { sfondo_Click(v); };
  v.RichTextBox1.Change = [&v] { v.testomodificato = 1; };
  v.RichTextBox1.SelChange = [&v] { statopulsanti(v); };
  v.Load = [&v] { Form_Load(v); };
  v.QueryUnload = [&v](bool& Cancel) { Form_QueryUnload(v, Cancel); };
}

}  // namespace trelvo
