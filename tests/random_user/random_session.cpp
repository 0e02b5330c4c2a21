#include "random_user/random_session.h"

#include <filesystem>
#include <optional>
#include <sstream>
#include <streambuf>

#include "app/app.h"
#include "random_user/invariants.h"
#include "random_user/random_lines.h"
#include "script/failure.h"
#include "script/runner.h"
#include "support/desktop_finto.h"

namespace trelvo {

namespace {

// A drawing that the user has just saved: it is read into another window and compared.
class Reopening {
 public:
  Reopening(const Session& session, Played& played) : session_(session), played_(played) {}

  // The lines that read the drawing again, if the step saved one under a name of its own.
  std::deque<std::string> after(const std::deque<std::string>& step) {
    const distipo* doc = session_.bas.attivo();
    if (doc == nullptr || step.size() < 2 || step.back() != "menu opfile 4") return {};
    name_ = doc->Caption;
    // A failed save leaves a mark of a change: there is nothing whole to read.
    const bool own = name_.starts_with("salvato") && step[step.size() - 2] == "file \"" + name_ + "\"";
    if (!own || doc->cmd.modificato != 0) return {};
    saved_ = doc;
    kept_ = kept_objects(doc->dis);
    return {"file \"" + name_ + "\"", "menu opfile 2"};
  }
  // What differs between the drawing and the one that was read; the window goes when the user likes.
  std::string compared() {
    if (!kept_) return {};
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
};

// The script, made a line at a time while it runs. It ends when something does not hold.
class UserLines : public std::streambuf {
 public:
  UserLines(Session& session, RandomLines& user, int steps, Played& played, std::ostream& trail)
      : user_(user),
        trail_(trail),
        invariants_(session.bas),
        reopening_(session, played),
        steps_(steps),
        played_(played) {}

 protected:
  int_type underflow() override {
    if (waiting_.empty() && !next()) return traits_type::eof();
    played_.lines.push_back(waiting_.front());
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
    if (played_.broken.empty()) played_.broken = reopening_.compared();
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
  std::ostream& trail_;
  Invariants invariants_;
  Reopening reopening_;
  int steps_;
  Played& played_;
  bool begun_ = false;
  std::deque<std::string> step_;     // the user's last one
  std::deque<std::string> waiting_;  // lines of it, or of a reading
  std::string line_;
};

}  // namespace

Played play(std::uint64_t seed, int steps, std::ostream& trail) {
  Played played;
  std::ostringstream printed;
  {
    Output output(printed);
    FakeFonts fonts;
    DesktopScript desktop(output, fonts);
    trelvobas bas(desktop, ".");
    Session session{bas, desktop, output};
    Runner runner(session);
    RandomLines user(session, seed);
    desktop.use_dialog = [&](const Form& form) {
      user.shown(form.name);
      runner.use_dialog(form);
    };
    desktop.document_made = [&](distipo& doc) { watch_document(session, doc); };
    prepara(bas);

    UserLines lines(session, user, steps, played, trail);
    std::istream script(&lines);
    try {
      runner.run(script);
    } catch (const ScriptFailure& failure) {
      played.broken = failure.what();
    }
  }
  played.output = printed.str();
  return played;
}

}  // namespace trelvo
