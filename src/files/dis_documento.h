// The drawing file of a document. Its name is the window's caption.
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Writes view, settings and all objects that are not deleted, in place of any file of that name. The former file stays
// under its name followed by "~" until the new one is complete on the disk; a failed write leaves it there and says so
// in its error. One that holds what the document never had, because it could not all be read or somebody else wrote it,
// stays for good. Errors 7, 52, 57, 61, 70, 75, 76.
void salvafile(distipo& doc);

// The same bytes to a file beside, which changes nothing of the document. Errors 7, 52, 57, 61, 70, 75, 76.
void scrivi_copia(const distipo& doc, const std::string& nome);

// Reads a drawing into a new, empty document. A file that cannot be opened raises error 53, 57, 70, 75 or 76 and
// changes nothing. Whatever else is wrong with it, the document takes all that can be read, is painted and idle; then
// the first fault is raised: 6 for a number that is not finite, 9 for a colour off the palette, 13 for a header value
// of another type, 57 for a failed read, or the error of writing the settings. A view without extent, a window state
// that is none, and a file that ends early are no faults.
void leggifile(distipo& doc);

// The same from `sorgente`. What comes from another file than the document's own counts as changed.
void leggifile(distipo& doc, const std::string& sorgente);

}  // namespace trelvo
