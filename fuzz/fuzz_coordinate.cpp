// Any texts typed as coordinates into the command line, at every step of every command that takes them.
#include <string_view>

#include "harness.h"

namespace {

using namespace trelvo;

void type_into(FuzzProgram& program, TextBox& box, const std::string& text) {
  if (!box.Enabled) return;
  program.event([&] { box.Text = text; });
  program.event([&] {
    int code = key_enter;
    box.KeyPress(code);
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  FuzzProgram program;
  program.event([&] { scegli(program.bas.frmMain.gestfile(1)); });
  frmMainForm& frame = program.bas.frmMain;
  program.desktop.modal = [](Form& form) {
    if (form.name == "Gesttesto") dynamic_cast<GesttestoForm&>(form).Text1.Text = "testo";
    if (auto* confirm = dynamic_cast<Button*>(form.find("Command1")); confirm != nullptr) confirm->Click();
  };
  // A line of the input is a command by its first byte, then a text for the entry that is open.
  while (!input.empty()) {
    const std::size_t end = std::min(input.find('\n'), input.size());
    const std::string line(input.substr(0, end));
    input.remove_prefix(std::min(end + 1, input.size()));
    if (line.empty()) continue;
    distipo& doc = program.document();
    const int choice = line.front() % 32;
    if (choice >= 1 && choice <= 7) program.event([&] { scegli(doc.opdis(choice)); });
    if (choice >= 8 && choice <= 14) program.event([&] { scegli(doc.modifica(choice - 5)); });
    if (choice == 15) program.event([&] { scegli(doc.mnudistanza); });
    if (choice >= 16 && choice <= 18) program.event([&] { scegli(doc.selezoom(choice - 15)); });
    type_into(program, frame.Text2.Enabled ? frame.Text2 : frame.Text1, line.substr(1));
  }
  program.event([&] { Form_KeyPress(program.document(), key_escape); });
  if (program.document().cmd.statooggetti == 1) require_stable_save(program);
  return 0;
}
