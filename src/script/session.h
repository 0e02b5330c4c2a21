// What the lines of a script act on.
#pragma once

#include "document/trelvobas.h"
#include "script/desktop_script.h"
#include "script/output.h"

namespace trelvo {

struct Session {
  trelvobas& bas;
  DesktopScript& desktop;
  Output& output;
  bool tracing = false;

  // The active document; fails when none is open.
  distipo& document() const;
};

// The calls of every surface and device context are printed while the session traces. A new document has to be watched.
void watch_document(Session& session, distipo& doc);
void set_tracing(Session& session, bool on);

}  // namespace trelvo
