// Copies of drawings as they stand before they are saved, in a folder of the running program: one that is killed costs
// nobody a drawing. They are a help beside the work: whatever fails here fails silently.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "document/trelvobas.h"

namespace trelvo {

// A drawing that was open in a program which did not end as it should.
struct disegnoperduto {
  std::string nome;      // its caption
  std::string impronta;  // of its file when it was read or written last
  std::string copia;     // of what was not saved; empty for none
  std::filesystem::path nota;
};

class copieaperte {
 public:
  // In a folder of its own under `cartella`: made when it is first needed, locked as long as the program runs.
  explicit copieaperte(std::filesystem::path cartella) : radice_(std::move(cartella)) {}
  copieaperte(const copieaperte&) = delete;
  copieaperte& operator=(const copieaperte&) = delete;
  // A program that ends as it should leaves nothing but what nobody was asked about.
  ~copieaperte();

  // Notes the drawings that are open, so that a save that is broken off can be told at the next start. Cheap if there
  // is nothing new.
  void annota(const trelvobas& bas);
  // Besides, makes a new copy of each drawing that is not on the disk as it stands, and drops those that are not
  // needed.
  void aggiorna(const trelvobas& bas);
  // Whether the drawing as it stands is on the disk: in its file, or in a copy with its note.
  bool al_sicuro(const distipo& doc) const;

  // What programs left that are gone, in the order of their windows.
  std::vector<disegnoperduto> perduti() const;
  static void dimentica(const disegnoperduto& perduto);

 private:
  struct voce {
    const distipo* doc = nullptr;
    std::string nota;
    std::uint64_t copiata = 0;  // state of the drawing in its copy; 0 for none
    bool resta = false;         // its window would close without a question, and take what was not saved with it
  };

  bool prepara();
  void rinnova();
  // A new copy, if the last one is not of the drawing as it stands.
  void ricopia(const distipo& doc);
  void copia(const distipo& doc, voce& v);
  void chiuso(int numero);
  void togli(int numero);
  std::filesystem::path file(int numero, const char* estensione) const;

  std::filesystem::path radice_;
  std::filesystem::path propria_;
  int descrittore_ = -1;
  std::map<int, voce> voci_;  // by the windows' running numbers
};

}  // namespace trelvo
