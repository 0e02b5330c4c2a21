// The words of a rich text file that mean something in a report.
#include <algorithm>
#include <unordered_map>

#include "report/caratteri.h"
#include "report/rtf_lettore.h"

namespace trelvo {

namespace {

using parole = std::unordered_map<std::string_view, parolartf>;

// A word that turns something on; with 0 it turns it off.
bool acceso(const segnortf& segno) { return !segno.con_numero || segno.numero != 0; }

int twip(const segnortf& segno) { return std::clamp(segno.numero, -scostamento_massimo, scostamento_massimo); }

template <bool caratterertf::*qualita>
void interruttore(lettorertf& l, const segnortf& segno) {
  l.stato().carattere.*qualita = acceso(segno);
}

template <allineamento quale>
void allinea(lettorertf& l, const segnortf& /*segno*/) {
  l.stato().paragrafo.formato.allinea = quale;
}

template <int formatoparagrafo::*rientro>
void rientra(lettorertf& l, const segnortf& segno) {
  l.stato().paragrafo.formato.*rientro = twip(segno);
}

template <destinazione dove>
void vai(lettorertf& l, const segnortf& /*segno*/) {
  l.vai_a(dove);
}

template <char32_t codice>
void carattere(lettorertf& l, const segnortf& /*segno*/) {
  const char32_t c = codice;
  l.scrivi(std::u32string_view(&c, 1));
}

template <segnoelenco segno>
void numerazione(lettorertf& l, const segnortf& /*segno*/) {
  if (l.stato().dove == destinazione::numerazione) l.stato().paragrafo.elenco = segno;
}

// Half points; six of them when not told.
template <int verso>
void sposta(lettorertf& l, const segnortf& segno) {
  constexpr int predefiniti = 6;
  constexpr int twip_a_mezzopunto = 10;
  const int mezzipunti = segno.con_numero ? segno.numero : predefiniti;
  const int limite = scostamento_massimo / twip_a_mezzopunto;
  l.stato().carattere.scostamento = verso * std::clamp(mezzipunti, -limite, limite) * twip_a_mezzopunto;
}

void misura(lettorertf& l, const segnortf& segno) {
  if (segno.numero > 0) {
    l.stato().carattere.mezzipunti = std::clamp(segno.numero, mezzipunti_minimi, mezzipunti_massimi);
  }
}

void scegli_carattere(lettorertf& l, const segnortf& segno) {
  l.stato().carattere.carattere = segno.numero;
  if (l.stato().dove == destinazione::caratteri) l.tabelle().carattere(segno.numero);
}

template <int spostamento>
void tinta(lettorertf& l, const segnortf& segno) {
  if (l.stato().dove == destinazione::colori) l.tabelle().tinta(spostamento, segno.numero);
}

void riferisci(lettorertf& l, const segnortf& segno) {
  if (l.stato().dove == destinazione::riferimenti) {
    l.tabelle().numera_riferimento(segno.numero);
  } else {
    l.stato().paragrafo.riferimento = segno.numero;
  }
}

void identifica(lettorertf& l, const segnortf& segno) {
  if (l.stato().dove == destinazione::elenchi) l.tabelle().identifica_elenco(segno.numero);
  if (l.stato().dove == destinazione::riferimenti) l.tabelle().riferisci(segno.numero);
}

void aggiungi_caratteri(parole& tavola) {
  tavola["b"] = {interruttore<&caratterertf::grassetto>, false};
  tavola["i"] = {interruttore<&caratterertf::corsivo>, false};
  tavola["strike"] = {interruttore<&caratterertf::barrato>, false};
  tavola["striked"] = {interruttore<&caratterertf::barrato>, false};
  for (const char* riga : {"ul", "uld", "uldb", "uldash", "uldashd", "uldashdd", "ulldash", "ulth", "ulthd", "ulthdash",
                           "ulthdashd", "ulthdashdd", "ulthldash", "ulw", "ulwave", "ulhwave", "ululdbwave"}) {
    tavola[riga] = {interruttore<&caratterertf::sottolineato>, false};
  }
  tavola["ulnone"] = {[](lettorertf& l, const segnortf&) { l.stato().carattere.sottolineato = false; }, false};
  tavola["f"] = {scegli_carattere, false};
  tavola["fs"] = {misura, false};
  tavola["cf"] = {[](lettorertf& l, const segnortf& s) { l.stato().carattere.colore = s.numero; }, false};
  tavola["up"] = {sposta<1>, false};
  tavola["dn"] = {sposta<-1>, false};
  tavola["super"] = {[](lettorertf& l, const segnortf&) { l.stato().carattere.scostamento = scostamento_apice; },
                     false};
  tavola["sub"] = {[](lettorertf& l, const segnortf&) { l.stato().carattere.scostamento = scostamento_pedice; }, false};
  tavola["nosupersub"] = {[](lettorertf& l, const segnortf&) { l.stato().carattere.scostamento = 0; }, false};
  tavola["plain"] = {[](lettorertf& l, const segnortf&) { l.senza_formato(); }, false};
  tavola["deff"] = {[](lettorertf& l, const segnortf& s) { l.predefinito(s.numero); }, false};
}

void aggiungi_paragrafi(parole& tavola) {
  tavola["ql"] = {allinea<allineamento::sinistra>, false};
  tavola["qr"] = {allinea<allineamento::destra>, false};
  tavola["qc"] = {allinea<allineamento::centro>, false};
  tavola["qj"] = {allinea<allineamento::giustificato>, false};
  tavola["li"] = {rientra<&formatoparagrafo::sinistro>, false};
  tavola["ri"] = {rientra<&formatoparagrafo::destro>, false};
  tavola["fi"] = {rientra<&formatoparagrafo::primariga>, false};
  tavola["pard"] = {[](lettorertf& l, const segnortf&) { l.stato().paragrafo = {}; }, false};
  tavola["ls"] = {riferisci, false};
  tavola["ilvl"] = {[](lettorertf& l, const segnortf& s) { l.stato().paragrafo.livello = s.numero; }, false};
  for (const char* fine : {"par", "sect", "page", "column"}) {
    tavola[fine] = {[](lettorertf& l, const segnortf&) { l.fine_del_paragrafo(); }, false};
  }
  for (const char* fine : {"cell", "nestcell"}) {
    tavola[fine] = {[](lettorertf& l, const segnortf&) { l.fine_della_cella(); }, false};
  }
  for (const char* fine : {"row", "nestrow"}) {
    tavola[fine] = {[](lettorertf& l, const segnortf&) { l.fine_della_riga(); }, false};
  }
}

void aggiungi_segni(parole& tavola) {
  tavola["tab"] = {carattere<U'\t'>, false};
  tavola["line"] = {carattere<a_capo>, false};
  tavola["lbr"] = {carattere<a_capo>, false};
  tavola["emdash"] = {carattere<0x2014>, false};
  tavola["endash"] = {carattere<0x2013>, false};
  tavola["emspace"] = {carattere<0x2003>, false};
  tavola["enspace"] = {carattere<0x2002>, false};
  tavola["qmspace"] = {carattere<0x2005>, false};
  tavola["bullet"] = {carattere<0x2022>, false};
  tavola["lquote"] = {carattere<0x2018>, false};
  tavola["rquote"] = {carattere<0x2019>, false};
  tavola["ldblquote"] = {carattere<0x201C>, false};
  tavola["rdblquote"] = {carattere<0x201D>, false};
  tavola["zwj"] = {carattere<0x200D>, false};
  tavola["zwnj"] = {carattere<0x200C>, false};
  tavola["ltrmark"] = {carattere<0x200E>, false};
  tavola["rtlmark"] = {carattere<0x200F>, false};
  tavola["u"] = {[](lettorertf& l, const segnortf& s) { l.unicode(s.numero); }, false};
  tavola["uc"] = {[](lettorertf& l, const segnortf& s) { l.stato().sostituti = std::clamp(s.numero, 0, 255); }, false};
}

void aggiungi_tabelle(parole& tavola) {
  tavola["fonttbl"] = {vai<destinazione::caratteri>, true};
  tavola["colortbl"] = {vai<destinazione::colori>, true};
  tavola["red"] = {tinta<0>, false};
  tavola["green"] = {tinta<8>, false};
  tavola["blue"] = {tinta<16>, false};
  tavola["listtable"] = {vai<destinazione::elenchi>, true};
  tavola["listoverridetable"] = {vai<destinazione::riferimenti>, true};
  tavola["list"] = {[](lettorertf& l, const segnortf&) { l.tabelle().elenco(); }, false};
  tavola["listlevel"] = {[](lettorertf& l, const segnortf&) { l.tabelle().livello(); }, false};
  for (const char* numero : {"levelnfc", "levelnfcn"}) {
    tavola[numero] = {[](lettorertf& l, const segnortf& s) { l.tabelle().segno_livello(s.numero); }, false};
  }
  tavola["listoverride"] = {[](lettorertf& l, const segnortf&) { l.tabelle().riferimento(); }, false};
  tavola["listid"] = {identifica, false};
}

void aggiungi_destinazioni(parole& tavola) {
  for (const char* nome : {"listtext", "pntext"}) tavola[nome] = {vai<destinazione::segno>, true};
  tavola["pn"] = {vai<destinazione::numerazione>, true};
  tavola["pnlvlblt"] = {numerazione<segnoelenco::punto>, false};
  for (const char* nome : {"pnlvl", "pnlvlbody", "pnlvlcont"}) {
    tavola[nome] = {numerazione<segnoelenco::numero>, false};
  }
  for (const char* nome : {"shpinst", "do"}) tavola[nome] = {vai<destinazione::disegno>, true};
  for (const char* nome : {"shptxt", "dptxbxtext"}) {
    tavola[nome] = {[](lettorertf& l, const segnortf&) {
                      if (l.stato().dove != destinazione::disegno) return;
                      l.vai_a(destinazione::corpo);
                      l.apri_interna();
                    },
                    false};
  }
  for (const char* nome : {"footnote", "endnote"}) {
    tavola[nome] = {[](lettorertf& l, const segnortf&) { l.apri_interna(); }, true};
  }
  // Text, or words about the text around, that some writers mark as ignorable.
  for (const char* nome : {"nesttableprops", "fldrslt", "result"}) {
    tavola[nome] = {[](lettorertf&, const segnortf&) {}, true};
  }
  for (const char* nome : {"stylesheet", "info",     "pict",      "header",       "headerl",    "headerr",  "headerf",
                           "footer",     "footerl",  "footerr",   "footerf",      "ftnsep",     "ftnsepc",  "ftncn",
                           "aftnsep",    "aftnsepc", "aftncn",    "fontemb",      "filetbl",    "revtbl",   "objclass",
                           "objname",    "objdata",  "fldinst",   "nonesttables", "nonshppict", "shprslt",  "pntxta",
                           "pntxtb",     "xe",       "tc",        "rxe",          "txe",        "template", "private",
                           "falt",       "panose",   "leveltext", "levelnumbers", "listname",   "sp"}) {
    tavola[nome] = {vai<destinazione::ignorata>, false};
  }
}

// The offset of what follows in the group around, where half points do not give it.
void aggiungi_scostamento(parole& tavola) {
  tavola["trelvoscost"] = {[](lettorertf& l, const segnortf& s) { l.scostamento_esatto(twip(s)); }, true};
}

}  // namespace

const parolartf* parola_rtf(std::string_view nome) {
  static const parole tavola = [] {
    parole tutte;
    aggiungi_caratteri(tutte);
    aggiungi_paragrafi(tutte);
    aggiungi_segni(tutte);
    aggiungi_tabelle(tutte);
    aggiungi_destinazioni(tutte);
    aggiungi_scostamento(tutte);
    return tutte;
  }();
  const auto trovata = tavola.find(nome);
  return trovata == tavola.end() ? nullptr : &trovata->second;
}

}  // namespace trelvo
