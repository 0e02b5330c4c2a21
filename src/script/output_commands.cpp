#include <array>
#include <cstdio>

#include "platform/image_file.h"
#include "platform/raster/overlay_painter.h"
#include "script/commands.h"
#include "script/failure.h"
#include "script/names.h"
#include "script/objects.h"
#include "script/state.h"

namespace trelvo {

namespace {

// What a user sees of a document.
Bitmap screen_of(const distipo& doc) {
  Bitmap screen = doc.surface.screen();
  const std::array<const OverlayLine*, 4> lines{&doc.Line1, &doc.Line2, &doc.Line3, &doc.Line4};
  const std::array<const OverlayShape*, 3> shapes{&doc.Shape1, &doc.Shape2, &doc.Shape3};
  paint_overlays(screen, doc.surface, lines, shapes);
  return screen;
}

void print_pixel(Session& session, const Arguments& a, const Bitmap& picture) {
  const int x = a.integer(0);
  const int y = a.integer(1);
  if (x < 0 || y < 0 || x >= picture.width || y >= picture.height) {
    throw ScriptFailure("no pixel " + a.text(0) + ' ' + a.text(1));
  }
  const std::uint32_t pixel =
      picture
          .pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) + static_cast<std::size_t>(x)];
  std::array<char, 8> digits{};
  std::snprintf(digits.data(), digits.size(), "%06X", static_cast<unsigned>(pixel & 0xFFFFFFU));
  session.output.line(a.command() + ' ' + a.text(0) + ' ' + a.text(1) + " = " + digits.data());
}

void record(Session& session, const Arguments& a) {
  const statocomandi& cmd = session.document().cmd;
  if (a.is(0, "sospeso")) {
    session.output.line("comandi sospeso: " + shown_record(cmd.comandosospeso));
    return;
  }
  const int position = a.integer(0);
  if (position < 0 || static_cast<std::size_t>(position) >= cmd.comandi.size()) {
    throw ScriptFailure("no command record " + a.text(0));
  }
  session.output.line("comandi " + a.text(0) + ": " + shown_record(cmd.comandi[static_cast<std::size_t>(position)]));
}

void picture(Session& session, const Arguments& a) {
  const std::string& path = a.text(0);
  if (image_format(path) == ImageFormat::unknown) throw ScriptFailure("no picture format for \"" + path + "\"");
  if (!write_image(path, session.document().surface.Image())) throw ScriptFailure("cannot write \"" + path + "\"");
}

void trace(Session& session, const Arguments& a) {
  if (!a.is(0, "on") && !a.is(0, "off")) throw ScriptFailure("a trace is on or off");
  set_tracing(session, a.is(0, "on"));
}

void echo(Session& session, const Arguments& a) {
  std::string text;
  for (std::size_t i = 0; i < a.count(); ++i) {
    if (i > 0) text += ' ';
    text += a.text(i);
  }
  session.output.line(text);
}

}  // namespace

void add_output_commands(ScriptCommands& commands) {
  commands["get"] = {
      1, 1, [](Session& s, const Arguments& a) { s.output.line(a.text(0) + " = " + shown_property(s, a.text(0))); }};
  commands["state"] = {
      1, 1, [](Session& s, const Arguments& a) { s.output.line(a.text(0) + " = " + shown_state(s, a.text(0))); }};
  commands["record"] = {1, 1, record};
  commands["objects"] = {0, 1, [](Session& s, const Arguments& a) {
                           print_objects(s.document().dis, a.count() == 1 ? a.text(0) : std::string(), s.output);
                         }};
  commands["picture"] = {1, 1, picture};
  commands["pixel"] = {2, 2, [](Session& s, const Arguments& a) { print_pixel(s, a, s.document().surface.Image()); }};
  commands["screenpixel"] = {2, 2, [](Session& s, const Arguments& a) { print_pixel(s, a, screen_of(s.document())); }};
  commands["trace"] = {1, 1, trace};
  commands["echo"] = {0, any_number, echo};
}

}  // namespace trelvo
