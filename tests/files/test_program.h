// One document in a program without a screen, with a folder for its files.
#pragma once

#include "commands/zoom.h"
#include "document/trelvobas.h"
#include "files/ini.h"
#include "support/desktop_finto.h"
#include "test_files.h"
#include "view/mappa.h"

namespace trelvo {

struct TestProgram {
  TestFolder folder;
  FakeDesktop desktop;
  trelvobas bas{desktop, folder.name()};
  distipo doc{bas, desktop.fonts(), 1};

  TestProgram() {
    bas.salvafileini_dis = salvafileini_dis;
    bas.ordine.push_back(&doc);
    bas.ndocumenti = bas.progrdocumento = 1;
    bas.nomidocumenti.resize(2);
    doc.surface.resize(15000, 9000);
    doc.Caption = "Disegno _ 1";
    selzoom(doc, 0, 0, 50, 20);
    memxin(doc);
  }
};

// The number of the run-time error that an action ends with, 0 for none.
template <class Action>
int error_of(Action&& action, std::string* text = nullptr) {
  try {
    action();
  } catch (const RuntimeError& error) {
    if (text != nullptr) *text = error.text();
    return error.number();
  }
  return 0;
}

}  // namespace trelvo
