// The report's file.
#pragma once

#include <string>

namespace trelvo {

struct videoscritt;

constexpr const char* senza_nome_relazione = "Senza Nome";

void nuova_relazione(videoscritt& v);
// Tells if the file cannot be read; the text stays then.
void apri_file(videoscritt& v, const std::string& nome);

}  // namespace trelvo
