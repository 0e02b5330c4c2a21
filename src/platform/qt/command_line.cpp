#include "platform/qt/command_line.h"

#include <filesystem>

namespace trelvo {

namespace {

// Desktop entries may hand a name over between quotation marks.
std::string without_marks(std::string name) {
  if (!name.empty() && name.front() == '"') name.erase(0, 1);
  if (!name.empty() && name.back() == '"') name.pop_back();
  return name;
}

class Reader {
 public:
  explicit Reader(const std::vector<std::string>& arguments) : arguments_(arguments) {}

  CommandLine read() {
    while (next_ < arguments_.size()) take(arguments_[next_++]);
    if (!line_.script.empty() && !line_.file.empty()) throw CommandLineError("--script non vuole un FILE da aprire");
    if (!line_.script.empty() && line_.report) throw CommandLineError("--script non vuole --relazione");
    return line_;
  }

 private:
  void take(const std::string& argument) {
    if (only_files_ || argument.size() < 2 || argument[0] != '-') {
      take_file(argument);
    } else if (argument == "--") {
      only_files_ = true;
    } else if (argument == "--help" || argument == "-h") {
      line_.help = true;
    } else if (argument == "--version") {
      line_.version = true;
    } else if (argument == "--relazione") {
      line_.report = true;
    } else if (!take_value(argument, "--folder", line_.folder) && !take_value(argument, "--script", line_.script)) {
      throw CommandLineError("opzione sconosciuta: " + argument);
    }
  }

  void take_file(const std::string& argument) {
    if (!line_.file.empty()) throw CommandLineError("un solo FILE alla volta");
    const std::string name = without_marks(argument);
    if (name.empty()) throw CommandLineError("nome di file vuoto");
    line_.file = std::filesystem::absolute(name).string();
  }

  // "--name VALUE" or "--name=VALUE"
  bool take_value(const std::string& argument, const std::string& name, std::string& value) {
    if (argument == name) {
      if (next_ == arguments_.size()) throw CommandLineError("manca il valore di " + name);
      value = arguments_[next_++];
    } else if (argument.starts_with(name + "=")) {
      value = argument.substr(name.size() + 1);
    } else {
      return false;
    }
    if (value.empty()) throw CommandLineError("manca il valore di " + name);
    return true;
  }

  const std::vector<std::string>& arguments_;
  std::size_t next_ = 0;
  bool only_files_ = false;
  CommandLine line_;
};

}  // namespace

CommandLine read_command_line(const std::vector<std::string>& arguments) { return Reader(arguments).read(); }

std::string usage() {
  return "Uso: trelvo [--folder DIR] [FILE]\n"
         "     trelvo [--folder DIR] --relazione [FILE]\n"
         "     trelvo [--folder DIR] --script FILE|-\n"
         "\n"
         "Disegno in due dimensioni.\n"
         "\n"
         "  FILE                il disegno da aprire (.DIS, o un disegno in forma di testo, .txt)\n"
         "  --folder DIR        la cartella del programma, dove si trova Trelvo.ini\n"
         "  --relazione [FILE]  mostra la sola videoscrittura, con un documento (.RTF o testo)\n"
         "  --script FILE       esegue i comandi di FILE, o dello standard input (-), senza finestre\n"
         "  -h, --help          mostra questo testo\n"
         "  --version           mostra la versione\n"
         "  --                  quel che segue è un nome di file\n"
         "\n"
         "Il manuale: man trelvo, e /usr/share/doc/trelvo/manuale/index.html\n";
}

}  // namespace trelvo
