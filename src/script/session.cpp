#include "script/session.h"

#include "script/failure.h"

namespace trelvo {

distipo& Session::document() const {
  distipo* doc = bas.attivo();
  if (doc == nullptr) throw ScriptFailure("no document is open");
  return *doc;
}

videoscritt& Session::open_report() const {
  if (!report_open()) throw ScriptFailure("no report is open");
  return *relazione;
}

namespace {

// `target` gives the name in front of each call.
template <class Target>
void watch_calls(Session& session, Surface& surface, Target target) {
  Trace trace;
  if (session.tracing) {
    trace = [&session, target](const std::string& call) { session.output.line(target() + '.' + call); };
  }
  surface.trace = trace;
  surface.hDC().trace = std::move(trace);
}

}  // namespace

void watch_document(Session& session, distipo& doc) {
  watch_calls(session, doc.surface, [&session, &doc] {
    const bool active = session.bas.attivo() == &doc;
    return active ? std::string("distipo") : "distipo(" + std::to_string(doc.numero) + ")";
  });
}

void set_tracing(Session& session, bool on) {
  session.tracing = on;
  for (const auto& doc : session.bas.finestredocumenti) {
    if (doc) watch_document(session, *doc);
  }
  trelvobas& bas = session.bas;
  // The context of a sheet takes the trace over when it starts.
  session.desktop.printer().trace =
      on ? Trace([&session](const std::string& call) { session.output.line("Printer." + call); }) : Trace();
  watch_calls(session, bas.impost.anteprima, [] { return std::string("impost.Picture1"); });
  watch_calls(session, bas.TipoLinea.anteprima, [] { return std::string("TipoLinea.Picture4"); });
  watch_calls(session, bas.Geststamp.anteprima, [] { return std::string("Geststamp.Picture1"); });
  watch_calls(session, bas.TipoSuperficie.anteprima, [] { return std::string("TipoSuperficie.Picture2"); });
}

}  // namespace trelvo
