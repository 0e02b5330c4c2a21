// What the lines of a script act on.
#pragma once

#include <memory>

#include "document/trelvobas.h"
#include "report/videoscritt.h"
#include "script/desktop_script.h"
#include "script/output.h"

namespace trelvo {

struct Session {
  trelvobas& bas;
  DesktopScript& desktop;
  Output& output;
  bool tracing = false;
  std::unique_ptr<videoscritt> relazione{};

  // The report editor; fails when it is not open.
  videoscritt& open_report() const;
  bool report_open() const { return relazione && relazione->loaded(); }

  // The active document; fails when none is open.
  distipo& document() const;
};

// The calls of every surface and device context are printed while the session traces. A new document has to be watched.
void watch_document(Session& session, distipo& doc);
void set_tracing(Session& session, bool on);

}  // namespace trelvo
