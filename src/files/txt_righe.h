// The lines of a text file in the code page, one after the other, without copying them.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace trelvo {

class righetxt {
 public:
  // Fills the given bytes with the next ones of the file; fewer only at its end.
  using prelievo = std::function<std::size_t(std::span<std::byte>)>;

  explicit righetxt(prelievo preleva);

  // The next line without its end (CR and LF, or either alone), valid until the next call. False at the end of the
  // file; what stands there without a line end is a line too.
  bool avanza(std::string_view& riga);

  // The next one of the values that commas and line ends part, without blanks around it; one in double quotes ends at
  // the closing one, and what follows up to the comma is passed over. Error 62 at the end of the file.
  std::string valore();

 private:
  bool rifornisci();

  prelievo preleva_;
  std::vector<char> blocco_;  // with a line end behind the last byte read, to stop at
  std::size_t inizio_ = 0;
  std::size_t fine_ = 0;
  bool finito_ = false;
  bool dopo_cr_ = false;              // a LF that comes next belongs to the last line's end
  bool terminata_ = false;            // the last line had an end
  std::optional<std::string> resto_;  // of a line from which values were taken
  std::string ripresa_;               // that rest, once it is the line
};

}  // namespace trelvo
