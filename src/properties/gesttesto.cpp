#include "properties/gesttesto.h"

#include <optional>

#include "commands/cursore_sospeso.h"
#include "commands/due_punti.h"
#include "commands/impostazioni.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "platform/numbers.h"
#include "properties/contorno.h"
#include "properties/selezionati.h"
#include "view/pittura.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

const char* const caratteri_diversi = "Tipo Carattere: Vari";
const char* const testo_di_molti = "Click su carattere modifica impostazioni";
constexpr Color colore_pulsante = rgb(192, 192, 192);
constexpr int decimali_dimensione = 2;

std::int16_t segno(bool valore) { return valore ? vero : falso; }

bool un_testo(const GesttestoForm& f) { return f.Label1.Caption.get() == modo_testo_uno; }

void apri_in_modo(GesttestoForm& f, const char* modo) {
  f.Label1.Caption = modo;
  f.Caption = modo;
}

// ---- font and background

// Sample and description follow the font dialog.
void set_carattere(trelvobas& bas) {
  GesttestoForm& f = bas.Gesttesto;
  const FontDialog& c = f.CommonDialog2;
  f.Label2.FontName = c.FontName;
  f.Label2.FontSize = c.FontSize;
  f.Label2.FontBold = c.FontBold;
  f.Label2.FontItalic = c.FontItalic;
  f.Label2.FontUnderline = c.FontUnderline;
  f.Label2.FontStrikethru = c.FontStrikethru;
  f.Label2.ForeColor = c.color;
  std::string descrizione = c.FontName + " " + regional_text(c.FontSize, bas.desktop.regional()) + " Pt. ";
  if (c.FontBold) descrizione += " - Grassetto";
  if (c.FontItalic) descrizione += " - Corsivo";
  if (c.FontUnderline) descrizione += " - Sottolineato";
  if (c.FontStrikethru) descrizione += " - Barrato";
  if (!c.FontBold && !c.FontItalic && !c.FontUnderline && !c.FontStrikethru) descrizione += " - Normale";
  f.Label4.Caption = descrizione;
}

std::optional<Color> sfondo_scelto(const GesttestoForm& f) {
  return f.Label8.Caption.get() == vari ? std::nullopt : colore_scelto(f.Label8);
}

void mostra_sfondo(GesttestoForm& f) {
  if (f.Label8.Caption.get() == vari) return;
  f.Label2.BackColor = f.Check1.Value != 0 ? f.Label8.BackColor.get() : Color{0xFFFFFF};
}

void Check1_Click(GesttestoForm& f) {
  f.opaco_toccato = true;
  mostra_sfondo(f);
  f.Command4.Enabled = f.Check1.Value != 0;
  f.Label8.Enabled = f.Check1.Value != 0;
}

void metti_sfondo(GesttestoForm& f, bool opaco, Color colore) {
  f.Label8.Caption = std::to_string(colore);
  f.Label8.BackColor = colore;
  f.Check1.Value = opaco ? 1 : 0;
  Check1_Click(f);
  f.opaco_toccato = false;
}

// The label holds the number, and shows the colour.
void Label8_Change(GesttestoForm& f) {
  if (f.Label8.Caption.get() == vari || f.Label8.Caption.get().empty()) return;
  f.Label8.BackColor = static_cast<Color>(round_clamped(numeric_prefix(f.Label8.Caption.get())));
  mostra_sfondo(f);
}

// ---- what the dialog gives to texts; nothing for what reads "Vari"

struct attributi_testo {
  std::optional<FontDialog> carattere;
  float dimensione = 0;
  std::optional<std::int32_t> angolo;
  std::optional<bool> opaco;
  std::optional<Color> colore_opaco;
};

attributi_testo attributi_scelti(const trelvobas& bas) {
  const GesttestoForm& f = bas.Gesttesto;
  const RegionalFormat formato = bas.desktop.regional();
  attributi_testo a;
  if (f.Label4.Caption.get() != caratteri_diversi) {
    const SampleLabel& campione = f.Label2;
    a.carattere = FontDialog{campione.FontName,      campione.FontSize,       campione.FontBold, campione.FontItalic,
                             campione.FontUnderline, campione.FontStrikethru, campione.ForeColor};
    a.dimensione =
        static_cast<float>(regional_number(fixed_text(campione.FontSize, decimali_dimensione, formato), formato));
  }
  if (f.Text2.Text.get() != vari) a.angolo = round_to_int32(regional_number(f.Text2.Text.get(), formato));
  a.colore_opaco = sfondo_scelto(f);
  if (a.colore_opaco || f.opaco_toccato) a.opaco = f.Check1.Value != 0;
  return a;
}

void dai(testo& t, const attributi_testo& a) {
  if (a.carattere) {
    t.colore_testo = a.carattere->color;
    t.bold_testo = segno(a.carattere->FontBold);
    t.corsivo_testo(segno(a.carattere->FontItalic));
    t.carattere_testo(a.carattere->FontName);
    t.dimens_testo = a.dimensione;
    t.barrato_testo = segno(a.carattere->FontStrikethru);
    t.sottolineato_testo = segno(a.carattere->FontUnderline);
  }
  if (a.angolo) t.ang_testo(*a.angolo);
  if (a.opaco) t.opaco_testo = segno(*a.opaco);
  if (a.colore_opaco) t.colore_opaco_testo = *a.colore_opaco;
}

void aggiungi_testo(distipo& doc, const attributi_testo& a) {
  doc.cmd.statotesti = 1;
  const reccomando& r = doc.cmd.corrente();
  testo& t = doc.bas.cur.curTesto;
  t.stringa_testo = doc.bas.Gesttesto.Text1.Text;
  t.pos_testox = r.x1;
  t.pos_testoy = r.y1;
  dai(t, a);
  disegnatesto(doc, t, true);
  doc.dis.collTesti.aggiungi(std::move(t));
  doc.cmd.modificato = 1;
  t = testo{};
  annullacomando(doc, -1);
}

// ---- filling from texts

void mostra_testo(trelvobas& bas, const testo& t) {
  GesttestoForm& f = bas.Gesttesto;
  f.CommonDialog2 = {t.nome_carattere(),
                     t.dimens_testo,
                     t.bold_testo != falso,
                     t.corsivo_testo() != falso,
                     t.sottolineato_testo != falso,
                     t.barrato_testo != falso,
                     t.colore_testo};
  f.Text2.Text = std::to_string(t.ang_testo());
  metti_sfondo(f, t.opaco_testo != falso, t.colore_opaco_testo);
  set_carattere(bas);
}

void riempi_uno(trelvobas& bas, const testo& t) {
  GesttestoForm& f = bas.Gesttesto;
  mostra_testo(bas, t);
  f.Text1.Text = t.stringa_testo;
  f.Text3.Text = regional_text(t.pos_testox, bas.desktop.regional());
  f.Text4.Text = regional_text(t.pos_testoy, bas.desktop.regional());
}

void spegni(TextBox& casella) {
  casella.Enabled = false;
  casella.BackColor = colore_pulsante;
}

void riempi_molti(trelvobas& bas, const collezione<testo>& coll, const testo& primo) {
  GesttestoForm& f = bas.Gesttesto;
  mostra_testo(bas, primo);
  f.Text1.Text = testo_di_molti;
  for (TextBox* casella : {&f.Text1, &f.Text3, &f.Text4}) spegni(*casella);
  if (!concordi(coll, [](const testo& t) { return t.ang_testo(); })) f.Text2.Text = vari;
  if (!concordi(coll, [](const testo& t) { return t.opaco_testo; })) f.Label8.Caption = vari;
  if (!concordi(coll, [](const testo& t) { return t.carattere_testo(); })) f.Label4.Caption = caratteri_diversi;
}

// ---- buttons

void Command1_Click(trelvobas& bas) {
  GesttestoForm& f = bas.Gesttesto;
  if (distipo* doc = bas.attivo(); doc != nullptr) {
    if (f.Label1.Caption.get() == modo_testo_generale) {
      set_carattGenTesto(*doc);
    } else if (f.Label1.Caption.get() == modo_testo_nuovo && f.Text1.Text.get().empty()) {
      annullacomando(*doc, 2);
    } else {
      aggtesto(*doc);
    }
  }
  f.unload();
}

// While properties are shown, the command that shows them ends by itself after the other classes.
void Command2_Click(trelvobas& bas) {
  distipo* doc = bas.attivo();
  const std::string modo = bas.Gesttesto.Label1.Caption;
  if (doc != nullptr && (modo == modo_testo_generale || modo == modo_testo_nuovo)) {
    annullacomando(*doc, 2);
    // A zoom that was cancelled gives way to the command behind it.
    ripristinatrasparente(*doc);
  }
  bas.Gesttesto.unload();
}

// ---- the command

void clic_testo(distipo& doc, float& X, float& Y) {
  if (doc.cmd.passo != 0) return;
  reccomando& r = doc.cmd.corrente();
  r.x1 = X / doc.vista.rapscala;
  r.y1 = Y / doc.vista.rapscala;
  doc.cmd.passo = 1;
  impost_gesttesto(doc);
  GesttestoForm& f = doc.bas.Gesttesto;
  apri_in_modo(f, modo_testo_nuovo);
  f.Text3.Text = regional_text(r.x1, doc.bas.desktop.regional());
  f.Text4.Text = regional_text(r.y1, doc.bas.desktop.regional());
  // The point that was given holds.
  for (TextBox* casella : {&f.Text3, &f.Text4}) casella->Locked = true;
  doc.bas.desktop.show_modal(f);
  // Left by its close box.
  if (doc.cmd.comando() == "Testo" && doc.cmd.passo == 1) annullacomando(doc, -1);
}

comando riga_testo() {
  comando c;
  c.nome = "Testo";
  c.primoprompt = [](distipo& doc) { scrivi_prompt(doc, "Testo _ Punto Iniziale:"); };
  c.clic = clic_testo;
  c.aggancio = sempre;
  c.accantona = [](distipo& doc) { doc.bas.cur.sosTesto = doc.bas.cur.curTesto; };
  c.riprendi = [](distipo& doc) {
    rendi_cursore(doc.bas.cur.sosTesto, doc.bas.cur.curTesto);
    scrivilabel1(doc);
  };
  return c;
}

}  // namespace

void prepara_Gesttesto(trelvobas& bas) {
  GesttestoForm& f = bas.Gesttesto;
  f.Text1.Text.on_change([&f] { f.Label2.Caption = f.Text1.Text; });
  f.Text2.KeyPress = [](int& codice) {
    if (codice == ',' || codice == '.') codice = 0;
  };
  f.Check1.Click = [&f] { Check1_Click(f); };
  f.Label8.Caption.on_change([&f] { Label8_Change(f); });
  collega_colore(bas, f.Command4, f.Label8, [&f] {
    f.Label8.Visible = true;
    mostra_sfondo(f);
  });
  f.Command3.Click = [&bas, &f] {
    if (bas.desktop.show_font(f.CommonDialog2)) set_carattere(bas);
  };
  f.Command1.Click = [&bas] { Command1_Click(bas); };
  f.Command2.Click = [&bas] { Command2_Click(bas); };
  f.Unloaded = [&f] { f.azzera(); };
  bas.tabella.righe.push_back(std::make_shared<const comando>(riga_testo()));
}

namespace {

// They take the frames round the texts away, which the menu and the drawing tell too.
void valori_di_partenza(distipo& doc) {
  inizializ_varTesto(doc);
  MenuItem& bordo = doc.aiutdis(voce_bordo);
  if (!bordo.Checked) return;
  bordo.Checked = false;
  redraw(doc);
}

}  // namespace

void impost_gesttesto(distipo& doc) {
  if (doc.testi.carattereDef.empty()) valori_di_partenza(doc);
  GesttestoForm& f = doc.bas.Gesttesto;
  const predefinititesto& t = doc.testi;
  f.CommonDialog2 = {t.carattereDef,
                     static_cast<float>(t.dimensionetestodef),
                     t.boldtestodef != falso,
                     t.corsivotestodef != falso,
                     t.sottolineatotestodef != falso,
                     t.barratotestodef != falso,
                     t.coloretestodef};
  f.Text2.Text = "0";
  metti_sfondo(f, t.opacotestodef != falso, doc.surface.BackColor);
  set_carattere(doc.bas);
}

void mnutipotesto_Click(distipo& doc) {
  GesttestoForm& f = doc.bas.Gesttesto;
  apri_in_modo(f, modo_testo_generale);
  impost_gesttesto(doc);
  for (TextBox* casella : {&f.Text2, &f.Text3, &f.Text4}) spegni(*casella);
  doc.bas.desktop.show_modal(f);
}

void aggtesto(distipo& doc) {
  const GesttestoForm& f = doc.bas.Gesttesto;
  const attributi_testo attributi = attributi_scelti(doc.bas);
  if (doc.cmd.comando() == "Testo") {
    aggiungi_testo(doc, attributi);
    return;
  }
  const RegionalFormat formato = doc.bas.desktop.regional();
  const double x = un_testo(f) ? regional_number(f.Text3.Text.get(), formato) : 0;
  const double y = un_testo(f) ? regional_number(f.Text4.Text.get(), formato) : 0;
  per_scelti<testo>(doc.dis, [&](testo& t) {
    dai(t, attributi);
    if (!un_testo(f)) return;
    t.stringa_testo = f.Text1.Text;
    t.pos_testox = x;
    t.pos_testoy = y;
  });
}

void set_carattGenTesto(distipo& doc) {
  const GesttestoForm& f = doc.bas.Gesttesto;
  const FontDialog& c = f.CommonDialog2;
  const std::int32_t dimensione = round_to_int32(c.FontSize);
  const Color sfondo = colore_scelto(f.Label8).value_or(doc.testi.coloreopacotestodef);
  predefinititesto& t = doc.testi;
  t.carattereDef = c.FontName;
  t.dimensionetestodef = dimensione;
  t.boldtestodef = segno(c.FontBold);
  t.corsivotestodef = segno(c.FontItalic);
  t.barratotestodef = segno(c.FontStrikethru);
  t.sottolineatotestodef = segno(c.FontUnderline);
  t.coloretestodef = c.color;
  t.opacotestodef = segno(f.Check1.Value != 0);
  t.coloreopacotestodef = sfondo;
  doc.bas.salvafileini_dis(doc);
}

void proprieta_testi(distipo& doc, int /*n*/, int& contatore) {
  const collezione<testo>& coll = std::as_const(doc.dis).collTesti;
  const scelti s = conta_scelti(coll);
  if (s.numero == 0) return;
  contatore = 1;
  GesttestoForm& f = doc.bas.Gesttesto;
  apri_in_modo(f, s.numero == 1 ? modo_testo_uno : modo_testo_molti);
  if (s.numero == 1) {
    riempi_uno(doc.bas, coll(s.primo));
  } else {
    riempi_molti(doc.bas, coll, coll(s.primo));
  }
  doc.bas.desktop.show_modal(f);
  per_scelti<testo>(doc.dis, [](testo& t) { t.stato = stato_presente; });
}

}  // namespace trelvo
