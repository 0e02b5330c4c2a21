// The user's settings, kept in one file that all documents share.
#pragma once

#include "document/distipo.h"

namespace trelvo {

// Takes the settings into the document and the program. What the file lacks, or holds no value of its kind for, takes
// its default; a missing file is made. An error of the file system is raised after all defaults are set.
void leggifileini_dis(distipo& doc);

// Writes all settings in place. Errors 52, 57, 61, 70, 75, 76.
void salvafileini_dis(distipo& doc);

// All defaults, and writes them.
void inizializini(distipo& doc);

}  // namespace trelvo
