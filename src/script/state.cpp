#include "script/state.h"

#include <algorithm>
#include <iterator>
#include <numbers>

#include "script/failure.h"
#include "script/names.h"
#include "script/shown.h"

namespace trelvo {

namespace {

struct DocumentVariable {
  std::string_view name;
  std::string (*shown)(const distipo&);
};

const DocumentVariable document_variables[] = {
    {"numero", [](const distipo& d) { return shown(d.numero); }},
    {"ridimensionato", [](const distipo& d) { return shown(d.ridimensionato); }},

    {"livello", [](const distipo& d) { return shown(d.cmd.livello); }},
    {"passo", [](const distipo& d) { return shown(d.cmd.passo); }},
    {"comando", [](const distipo& d) { return shown(d.cmd.comando()); }},
    {"ultimocomando", [](const distipo& d) { return shown(d.cmd.ultimocomando); }},
    {"comandosospeso", [](const distipo& d) { return shown(d.cmd.comandosospeso.tipo()); }},
    {"modoselez", [](const distipo& d) { return shown(d.cmd.modoselez); }},
    {"ntrovati", [](const distipo& d) { return shown(d.cmd.ntrovati); }},
    {"modificato", [](const distipo& d) { return shown(d.cmd.modificato); }},
    {"statooggetti", [](const distipo& d) { return shown(d.cmd.statooggetti); }},
    {"statotesti", [](const distipo& d) { return shown(d.cmd.statotesti); }},

    {"rapscala", [](const distipo& d) { return shown(d.vista.rapscala); }},
    {"xminvis", [](const distipo& d) { return shown(d.vista.xminvis); }},
    {"yminvis", [](const distipo& d) { return shown(d.vista.yminvis); }},
    {"larghezzavis", [](const distipo& d) { return shown(d.vista.larghezzavis); }},
    {"altezzavis", [](const distipo& d) { return shown(d.vista.altezzavis); }},
    {"xmindis", [](const distipo& d) { return shown(d.vista.xmindis); }},
    {"ymindis", [](const distipo& d) { return shown(d.vista.ymindis); }},
    {"xmaxdis", [](const distipo& d) { return shown(d.vista.xmaxdis); }},
    {"ymaxdis", [](const distipo& d) { return shown(d.vista.ymaxdis); }},
    {"zoompercento", [](const distipo& d) { return shown(d.vista.zoompercento); }},
    {"valoreprecH", [](const distipo& d) { return shown(d.vista.valoreprecH); }},
    {"valoreprecV", [](const distipo& d) { return shown(d.vista.valoreprecV); }},

    {"statostep", [](const distipo& d) { return shown(d.imp.statostep); }},
    {"passostep", [](const distipo& d) { return shown(d.imp.passostep); }},
    {"statogriglia", [](const distipo& d) { return shown(d.imp.statogriglia); }},
    {"passogriglia", [](const distipo& d) { return shown(d.imp.passogriglia); }},
    {"statoorto", [](const distipo& d) { return shown(d.imp.statoorto); }},
    {"bordotesto", [](const distipo& d) { return shown(d.imp.bordotesto); }},
    {"coloresfondo", [](const distipo& d) { return shown(d.imp.coloresfondo.valore); }},
    {"colorepuntatore", [](const distipo& d) { return shown(d.imp.colorepuntatore.valore); }},
    {"colorecontrasto", [](const distipo& d) { return shown(d.imp.colorecontrasto.valore); }},

    {"filtroattivo", [](const distipo& d) { return shown(d.filtro.filtroattivo); }},
    {"trovatofiltro", [](const distipo& d) { return shown(d.filtro.trovatofiltro); }},
    {"xfiltro", [](const distipo& d) { return shown(d.filtro.xfiltro); }},
    {"yfiltro", [](const distipo& d) { return shown(d.filtro.yfiltro); }},
    {"ultimofiltro", [](const distipo& d) { return shown(d.filtro.ultimofiltro); }},

    {"carattereDef", [](const distipo& d) { return shown(d.testi.carattereDef); }},
    {"dimensionetestodef", [](const distipo& d) { return shown(d.testi.dimensionetestodef); }},
    {"boldtestodef", [](const distipo& d) { return shown(d.testi.boldtestodef); }},
    {"corsivotestodef", [](const distipo& d) { return shown(d.testi.corsivotestodef); }},
    {"barratotestodef", [](const distipo& d) { return shown(d.testi.barratotestodef); }},
    {"sottolineatotestodef", [](const distipo& d) { return shown(d.testi.sottolineatotestodef); }},
    {"coloretestodef", [](const distipo& d) { return shown(d.testi.coloretestodef); }},
    {"opacotestodef", [](const distipo& d) { return shown(d.testi.opacotestodef); }},
    {"coloreopacotestodef", [](const distipo& d) { return shown(d.testi.coloreopacotestodef); }},

    {"larghcarta", [](const distipo& d) { return shown(d.stampa.larghcarta); }},
    {"altezcarta", [](const distipo& d) { return shown(d.stampa.altezcarta); }},
    {"larghanteprima", [](const distipo& d) { return shown(d.stampa.larghanteprima); }},
    {"altezanteprima", [](const distipo& d) { return shown(d.stampa.altezanteprima); }},
    {"scalastampa", [](const distipo& d) { return shown(d.stampa.scalastampa); }},
    {"origstampax", [](const distipo& d) { return shown(d.stampa.origstampax); }},
    {"origstampay", [](const distipo& d) { return shown(d.stampa.origstampay); }},
};

std::string focus_name(const Session& session) {
  // A control that was disabled or hidden has lost the keyboard to its window.
  const Control* control = session.desktop.focus();
  if (control != nullptr && control->Enabled && control->Visible) return name_of(*control);
  if (!session.desktop.dialogs().empty()) return session.desktop.dialogs().back()->name;
  return session.bas.attivo() != nullptr ? "distipo" : session.bas.frmMain.name;
}

struct ModuleVariable {
  std::string_view name;
  std::string (*shown)(const Session&);
};

const ModuleVariable module_variables[] = {
    {"focus", focus_name},
    {"pointer", [](const Session& s) { return shown(s.desktop.MousePointer.get()); }},

    {"pigreco", [](const Session&) { return shown(std::numbers::pi); }},
    {"nbarre", [](const Session& s) { return shown(s.bas.nbarre); }},
    {"fileini", [](const Session& s) { return shown(s.bas.fileini); }},
    {"ndocumenti", [](const Session& s) { return shown(s.bas.ndocumenti); }},
    {"progrdocumento", [](const Session& s) { return shown(s.bas.progrdocumento); }},
    {"disegnoattivo", [](const Session& s) { return shown(s.bas.disegnoattivo); }},
    {"ndocumentichiusura", [](const Session& s) { return shown(s.bas.ndocumentichiusura); }},

    {"colorelineadef", [](const Session& s) { return shown(s.bas.def.colorelineadef); }},
    {"spessorelineadef", [](const Session& s) { return shown(s.bas.def.spessorelineadef); }},
    {"tipolineadef", [](const Session& s) { return shown(s.bas.def.tipolineadef); }},
    {"campituradef", [](const Session& s) { return shown(s.bas.def.campituradef); }},
    {"colocampituradef", [](const Session& s) { return shown(s.bas.def.colocampituradef); }},
    {"colcontdef", [](const Session& s) { return shown(s.bas.def.colcontdef); }},
    {"spescontdef", [](const Session& s) { return shown(s.bas.def.spescontdef); }},
    {"trattcontdef", [](const Session& s) { return shown(s.bas.def.trattcontdef); }},

    {"nomedocumento", [](const Session& s) { return shown(s.open_report().nomedocumento); }},
    {"testomodificato", [](const Session& s) { return shown(s.open_report().testomodificato); }},
};

template <class Variables>
auto* variable_named(const Variables& variables, std::string_view name) {
  const auto* found =
      std::find_if(std::begin(variables), std::end(variables), [&](const auto& v) { return v.name == name; });
  return found == std::end(variables) ? nullptr : found;
}

template <class Array>
std::string element(const Array& array, int first, const IndexedName& wanted) {
  if (wanted.index < first || static_cast<std::size_t>(wanted.index) >= array.size()) {
    throw ScriptFailure("no index " + std::to_string(wanted.index) + " in \"" + wanted.name + "\"");
  }
  return shown(array[static_cast<std::size_t>(wanted.index)]);
}

}  // namespace

std::string shown_state(const Session& session, std::string_view name) {
  if (const auto* variable = variable_named(module_variables, name)) return variable->shown(session);
  if (const auto* variable = variable_named(document_variables, name)) return variable->shown(session.document());

  const IndexedName wanted = indexed_name(name);
  if (wanted.index != no_index) {
    if (wanted.name == "nomidocumenti") return element(session.bas.nomidocumenti, 0, wanted);
    if (wanted.name == "spessoristampa") return element(session.bas.spessoristampa, 0, wanted);
    if (wanted.name == "barra") return element(session.document().barrevis.barra, 1, wanted);
  }
  throw ScriptFailure("no variable \"" + std::string(name) + "\"");
}

std::string shown_record(const reccomando& record) {
  return "tipo=" + shown(record.tipo()) + " x1=" + shown(record.x1) + " y1=" + shown(record.y1) +
         " x2=" + shown(record.x2) + " y2=" + shown(record.y2) + " x3=" + shown(record.x3) + " y3=" + shown(record.y3) +
         " nvertici=" + shown(record.nvertici);
}

}  // namespace trelvo
