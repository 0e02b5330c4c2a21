// What all windows share: the lists of documents, the frame, defaults, cursors, and the desktop the program runs on.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "document/barprog.h"
#include "document/coordvert.h"
#include "document/distipo.h"
#include "document/frmMain.h"
#include "document/geststamp.h"
#include "document/gesttesto.h"
#include "document/impost.h"
#include "document/selcol.h"
#include "document/spesslin.h"
#include "document/tipolinea.h"
#include "document/tiposuperficie.h"
#include "document/zoomp.h"
#include "model/cursori.h"
#include "model/predefiniti.h"
#include "platform/desktop.h"

namespace trelvo {

struct comando;

// The table of commands: rows that the floors above add at start.
struct tabellacomandi {
  std::vector<std::shared_ptr<const comando>> righe;
};

struct trelvobas {
  // `cartella` is the program's folder, where the settings lie.
  trelvobas(Desktop& scrivania, const std::string& cartella);

  Desktop& desktop;
  std::string fileini;
  int nbarre = 0;
  int ndocumenti = 0;
  int progrdocumento = 0;
  int disegnoattivo = 0;
  int ndocumentichiusura = 0;
  // By running number, index 0 unused; a closed window leaves an empty place.
  std::vector<std::string> nomidocumenti{1};
  std::vector<std::unique_ptr<distipo>> finestredocumenti{1};
  // Documents in the order of their last activation, the active one last.
  std::vector<distipo*> ordine;

  tabellacomandi tabella;
  frmMainForm frmMain;
  zoompForm zoomp;
  impostForm impost;
  SelcolForm Selcol;
  barprogForm barprog;
  TipoLineaForm TipoLinea;
  TipoSuperficieForm TipoSuperficie;
  GesttestoForm Gesttesto;
  CoordVertForm CoordVert;
  GeststampForm Geststamp;
  SpesslinForm Spesslin;

  // Given by the floors above at start: writes the settings of a document to `fileini`.
  std::function<void(distipo&)> salvafileini_dis;
  // The edit operations of the command at level n, a class each, in the order in which they run; `contatore` tells
  // whether one of them met a selected object.
  std::vector<std::function<void(distipo&, int n, int& contatore)>> modifiche;
  // The same for "Proprietà Oggetto": each shows the dialog of its class.
  std::vector<std::function<void(distipo&, int n, int& contatore)>> proprieta;
  // Closed windows, whose own handlers may still be running, until the event ends.
  std::vector<std::unique_ptr<distipo>> chiusi;
  int eventi = 0;  // depth of the running events

  predefiniti def;
  cursori cur;
  std::array<float, 16> spessoristampa{};

  // The document in front, nullptr for none.
  distipo* attivo() const { return ordine.empty() ? nullptr : ordine.back(); }
};

}  // namespace trelvo
