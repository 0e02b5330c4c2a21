#include "random_user/random_session.h"

#include <filesystem>
#include <optional>
#include <sstream>
#include <streambuf>

#include "random_user/invariants.h"
#include "random_user/outside.h"
#include "random_user/random_lines.h"
#include "random_user/report_lines.h"
#include "random_user/report_reopening.h"
#include "random_user/sheets.h"
#include "script/failure.h"
#include "script/machine.h"
#include "support/desktop_finto.h"

namespace trelvo {

namespace {

// What the user has just saved is read and compared, a drawing in another window.
class Reopening {
 public:
  Reopening(const Session& session, Played& played) : session_(session), played_(played), report_(session) {}

  // The lines that read it again, if the step saved something under a name of its own.
  std::deque<std::string> after(const std::deque<std::string>& step) {
    const distipo* doc = session_.bas.attivo();
    if (doc == nullptr || step.size() < 2 || step.back() != "menu opfile 4") return report_.after(step);
    name_ = doc->Caption;
    // A failed save leaves a mark of a change: there is nothing whole to read.
    const bool own = name_.starts_with("salvato") && step[step.size() - 2] == "file \"" + name_ + "\"";
    if (!own || doc->cmd.modificato != 0) return {};
    saved_ = doc;
    kept_ = kept_objects(doc->dis);
    return {"file \"" + name_ + "\"", "menu opfile 2"};
  }
  // What differs from what was read; the window goes when the user likes.
  std::string compared() {
    if (!kept_) return report_.compared(played_.reopened);
    const std::vector<std::string> before = std::move(*kept_);
    kept_.reset();
    std::error_code ignored;
    std::filesystem::remove(name_, ignored);
    const distipo* doc = session_.bas.attivo();
    if (doc == saved_ || doc->Caption.get() != name_) return "a saved drawing does not open: " + name_;
    const std::vector<std::string> after = kept_objects(doc->dis);
    for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
      const std::string was = i < before.size() ? before[i] : "nothing";
      const std::string is = i < after.size() ? after[i] : "nothing";
      if (was != is) return "a drawing read again differs:\n  " + was + "\n  " + is;
    }
    ++played_.reopened;
    return {};
  }

 private:
  const Session& session_;
  Played& played_;
  const distipo* saved_ = nullptr;
  std::string name_;
  std::optional<std::vector<std::string>> kept_;
  ReportReopening report_;
};

// The script, made a line at a time while it runs. It ends when something does not hold.
class UserLines : public std::streambuf {
 public:
  UserLines(Session& session, const Sheets& sheets, RandomLines& user, int steps, Played& played, std::ostream& trail)
      : user_(user),
        sheets_(sheets),
        bas_(session.bas),
        trail_(trail),
        session_(session),
        invariants_(session.bas),
        reopening_(session, played),
        steps_(steps),
        played_(played) {}

 protected:
  int_type underflow() override {
    if (waiting_.empty() && !next()) return traits_type::eof();
    played_.seen.push_back(seen_by_user(bas_));
    played_.lines.push_back(waiting_.front());
    happen_outside(waiting_.front());
    line_ = waiting_.front() + '\n';
    trail_ << line_ << std::flush;
    waiting_.pop_front();
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(*gptr());
  }

 private:
  bool next() {
    if (begun_) played_.broken = invariants_.broken();
    begun_ = true;
    if (played_.broken.empty()) played_.broken = report_.broken(session_);
    if (played_.broken.empty()) played_.broken = reopening_.compared();
    if (played_.broken.empty() && sheets_.on() != 0) played_.broken = "a sheet is left on";
    if (!played_.broken.empty() || played_.steps >= steps_) return false;
    waiting_ = reopening_.after(step_);
    step_.clear();
    if (waiting_.empty()) {
      ++played_.steps;
      waiting_ = step_ = user_.next_step();
    }
    return true;
  }

  RandomLines& user_;
  const Sheets& sheets_;
  const trelvobas& bas_;
  std::ostream& trail_;
  const Session& session_;
  Invariants invariants_;
  ReportInvariants report_;
  Reopening reopening_;
  int steps_;
  Played& played_;
  bool begun_ = false;
  std::deque<std::string> step_;     // the user's last one
  std::deque<std::string> waiting_;  // lines of it, or of a reading
  std::string line_;
};

// The lines of a session that was played before.
class SameLines : public std::streambuf {
 public:
  SameLines(const trelvobas& bas, const std::vector<std::string>& lines, Played& played)
      : bas_(bas), lines_(lines), played_(played) {}

 protected:
  int_type underflow() override {
    if (next_ == lines_.size()) return traits_type::eof();
    played_.seen.push_back(seen_by_user(bas_));
    happen_outside(lines_[next_]);
    line_ = lines_[next_++] + '\n';
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(*gptr());
  }

 private:
  const trelvobas& bas_;
  const std::vector<std::string>& lines_;
  Played& played_;
  std::size_t next_ = 0;
  std::string line_;
};

// A program and the script that drives it.
struct Driven {
  std::ostringstream printed;
  FakeFonts fonts;
  Sheets sheets{fonts};
  Machine machine{printed, ".", fonts, sheets.maker()};

  void run(std::streambuf& lines, Played& played) {
    std::istream script(&lines);
    try {
      machine.runner.run(script);
    } catch (const ScriptFailure& failure) {
      played.broken = failure.what();
    }
    machine.output.flush();
    played.output = printed.str();
    played.sheets = sheets.finished();
  }
};

}  // namespace

Played play(std::uint64_t seed, int steps, std::ostream& trail) {
  Played played;
  Driven driven;
  Machine& machine = driven.machine;
  RandomLines user(machine.session, seed);
  machine.desktop.use_dialog = [&](const Form& form) {
    user.shown(form.name);
    machine.runner.use_dialog(form);
  };
  UserLines lines(machine.session, driven.sheets, user, steps, played, trail);
  driven.run(lines, played);
  return played;
}

std::string differs_by_plain_walks(const Played& played) {
  Played plain;
  Driven driven;
  Machine& machine = driven.machine;
  machine.desktop.document_made = [&](distipo& doc) {
    doc.dis.con_luoghi = false;
    watch_document(machine.session, doc);
  };
  SameLines lines(machine.bas, played.lines, plain);
  driven.run(lines, plain);
  for (std::size_t i = 0; i < played.lines.size(); ++i) {
    if (i >= plain.seen.size() || plain.seen[i] != played.seen[i]) {
      return "a plain walk shows something else before line " + std::to_string(i + 1) + ", " + played.lines[i];
    }
  }
  if (plain.sheets != played.sheets) return "a plain walk prints another sheet";
  return plain.output == played.output ? std::string() : "a plain walk tells something else";
}

}  // namespace trelvo
