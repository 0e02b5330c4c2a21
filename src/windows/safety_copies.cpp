#include "windows/safety_copies.h"

#include <fcntl.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <algorithm>
#include <array>
#include <csignal>

#include "app/perduti.h"
#include "windows/desktop_qt.h"
#include "windows/lost_drawings.h"

namespace trelvo {

namespace {

constexpr std::array ending_signals{SIGTERM, SIGHUP, SIGINT};
// Milliseconds between copies. Large drawings take longer to write, and are copied less often.
constexpr qint64 shortest_pause = 10000;
constexpr qint64 pause_for_writing = 400;

// A handler may do little more than write to a pipe.
std::array<int, 2> signal_pipe{-1, -1};

void tell_signal(int number) {
  const auto byte = static_cast<char>(number);
  [[maybe_unused]] const auto written = write(signal_pipe[1], &byte, 1);
}

}  // namespace

SafetyCopies::SafetyCopies(DesktopQt& desktop, const std::string& folder) : desktop_(desktop), copies_(folder) {
  desktop_.after_event = [this] { copies_.annota(desktop_.bas()); };
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { make_copies(); });
  timer_.start(static_cast<int>(shortest_pause));
  watch_signals();
}

SafetyCopies::~SafetyCopies() {
  desktop_.after_event = {};
  for (const int number : ending_signals) std::signal(number, SIG_DFL);
}

void SafetyCopies::offer_lost() {
  std::vector<disegnoperduto> lost = perduti_da_offrire(desktop_.bas(), copies_);
  if (!lost.empty()) new LostDrawings(desktop_, copies_, std::move(lost));  // the frame's own
}

void SafetyCopies::make_copies() {
  QElapsedTimer watch;
  watch.start();
  copies_.aggiorna(desktop_.bas());
  timer_.start(static_cast<int>(std::max(shortest_pause, pause_for_writing * watch.elapsed())));
}

// A program that is told to end does so as it would have, after a last look at what is unsaved.
void SafetyCopies::watch_signals() {
  if (pipe2(signal_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, this);
  QObject::connect(notifier, &QSocketNotifier::activated, this, [this] {
    char number = 0;
    if (read(signal_pipe[0], &number, 1) != 1) return;
    copies_.aggiorna(desktop_.bas());
    std::signal(number, SIG_DFL);
    [[maybe_unused]] const int failed = std::raise(number);
  });
  for (const int number : ending_signals) std::signal(number, tell_signal);
}

}  // namespace trelvo
