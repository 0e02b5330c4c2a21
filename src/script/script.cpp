#include "script/script.h"

#include <filesystem>
#include <fstream>
#include <iostream>

#include "script/failure.h"
#include "script/machine.h"

namespace trelvo {

int esegui_script(std::istream& righe, std::ostream& uscita, std::ostream& errori, const std::string& cartella,
                  FontService& caratteri, const PdfMaker& fogli) {
  Machine macchina(uscita, cartella, caratteri, fogli);
  try {
    macchina.runner.run(righe);
  } catch (const ScriptFailure& failure) {
    macchina.output.flush();
    errori << failure.what() << '\n';
    return 1;
  }
  macchina.output.flush();
  const bool letto = !righe.bad();
  if (!letto) errori << "the script cannot be read\n";
  if (!uscita) errori << "the answers cannot be written\n";
  return letto && uscita ? 0 : 1;
}

int esegui_script(const std::string& percorso, const std::string& cartella, FontService& caratteri,
                  const PdfMaker& fogli) {
  if (percorso == "-") return esegui_script(std::cin, std::cout, std::cerr, cartella, caratteri, fogli);
  std::ifstream file(percorso, std::ios::binary);
  if (!file || std::filesystem::is_directory(percorso)) {
    std::cerr << "cannot open " << percorso << '\n';
    return 2;
  }
  return esegui_script(file, std::cout, std::cerr, cartella, caratteri, fogli);
}

}  // namespace trelvo
