#include "files/copie.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <tuple>
#include <utility>

#include "files/accesso_file.h"
#include "files/comandi_file.h"
#include "files/dis_documento.h"
#include "files/recupero.h"

namespace trelvo {

namespace {

namespace fs = std::filesystem;

constexpr const char* cartella_copie = "recupero";
constexpr const char* estensione_nota = ".nota";
constexpr const char* estensione_copia = ".DIS";
constexpr const char* estensione_incompleta = ".nuova";

// A folder that is locked by a program that runs. -1 if it is not there, or is locked already.
int blocca(const fs::path& cartella) {
  const int descrittore = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descrittore >= 0 && ::flock(descrittore, LOCK_EX | LOCK_NB) == 0) return descrittore;
  if (descrittore >= 0) ::close(descrittore);
  return -1;
}

// Another program takes an unlocked folder for one that was left, and may have removed it in between.
bool stessa(int descrittore, const fs::path& cartella) {
  struct stat aperta {};
  struct stat presente {};
  return ::fstat(descrittore, &aperta) == 0 && ::stat(cartella.c_str(), &presente) == 0 &&
         aperta.st_ino == presente.st_ino;
}

std::string nota_di(const distipo& doc) { return doc.impronta + '\n' + doc.Caption.get(); }

bool da_copiare(const distipo& doc) { return doc.dis.revisione() != doc.salvata; }

// Whole or not at all.
bool scrivi(const fs::path& file, const std::string& testo) {
  const fs::path nuova = fs::path(file).replace_extension(estensione_incompleta);
  std::ofstream flusso(nuova, std::ios::binary);
  flusso << testo << std::flush;
  flusso.close();
  std::error_code errore;
  if (flusso.good()) fs::rename(nuova, file, errore);
  if (flusso.good() && !errore) return true;
  fs::remove(nuova, errore);
  return false;
}

bool uguali(const fs::path& uno, const fs::path& altro) {
  std::error_code errore;
  const std::uintmax_t lunghezza = fs::file_size(uno, errore);
  if (errore || fs::file_size(altro, errore) != lunghezza || errore) return false;
  std::ifstream primo(uno, std::ios::binary);
  std::ifstream secondo(altro, std::ios::binary);
  using byte = std::istreambuf_iterator<char>;
  return primo && secondo && std::equal(byte(primo), byte(), byte(secondo), byte());
}

// A copy whose note was lost is that of a drawing without a name.
disegnoperduto leggi_nota(const fs::path& nota) {
  disegnoperduto perduto;
  std::error_code errore;
  if (fs::is_regular_file(nota, errore)) {
    std::ifstream flusso(nota, std::ios::binary);
    std::getline(flusso, perduto.impronta);
    std::getline(flusso, perduto.nome, '\0');
    if (perduto.nome.empty()) perduto.impronta.clear();
  }
  if (perduto.nome.empty()) perduto.nome = titolo_senza_nome(1);
  const fs::path copia = fs::path(nota).replace_extension(estensione_copia);
  // Objects that were only looked at, as by a selection or a print, made a copy of what the file says too.
  if (leggibile(copia.string()) && !uguali(copia, perduto.nome)) perduto.copia = copia.string();
  perduto.nota = nota;
  return perduto;
}

}  // namespace

copieaperte::~copieaperte() {
  while (!voci_.empty()) chiuso(voci_.begin()->first);
  if (descrittore_ < 0) return;
  std::error_code ignorato;
  fs::remove(propria_, ignorato);
  fs::remove(radice_ / cartella_copie, ignorato);
  ::close(descrittore_);
}

bool copieaperte::prepara() {
  if (descrittore_ >= 0) return true;
  constexpr int tentativi = 1000;
  std::error_code errore;
  fs::create_directories(radice_ / cartella_copie, errore);
  for (int i = 1; i <= tentativi && !errore; ++i) {
    propria_ = radice_ / cartella_copie / std::to_string(i);
    if (!fs::create_directory(propria_, errore)) continue;
    descrittore_ = blocca(propria_);
    if (descrittore_ < 0) break;
    if (stessa(descrittore_, propria_)) return true;
    ::close(std::exchange(descrittore_, -1));
  }
  // Where nothing can be locked nothing is left lying.
  fs::remove(propria_, errore);
  return false;
}

fs::path copieaperte::file(int numero, const char* estensione) const {
  return propria_ / (std::to_string(numero) + estensione);
}

bool copieaperte::al_sicuro(const distipo& doc) const {
  if (!da_copiare(doc)) return true;
  const auto trovata = voci_.find(doc.numero);
  return trovata != voci_.end() && trovata->second.doc == &doc && trovata->second.copiata == doc.dis.revisione() &&
         !trovata->second.nota.empty();
}

void copieaperte::togli(int numero) {
  std::error_code ignorato;
  for (const char* estensione : {estensione_copia, estensione_nota, estensione_incompleta}) {
    if (descrittore_ >= 0) fs::remove(file(numero, estensione), ignorato);
  }
  voci_.erase(numero);
}

void copieaperte::chiuso(int numero) {
  if (voci_[numero].resta) {
    voci_.erase(numero);
  } else {
    togli(numero);
  }
}

void copieaperte::annota(const trelvobas& bas) {
  std::vector<int> chiusi;
  for (const auto& [numero, v] : voci_) {
    const auto posto = static_cast<std::size_t>(numero);
    if (posto >= bas.finestredocumenti.size() || bas.finestredocumenti[posto].get() != v.doc) chiusi.push_back(numero);
  }
  for (const int numero : chiusi) chiuso(numero);
  for (const auto& finestra : bas.finestredocumenti) {
    const bool resta = finestra && finestra->segno_tolto && finestra->cmd.modificato != 1 && da_copiare(*finestra);
    if (resta) ricopia(*finestra);
    // A drawing that never had a file is worth a note once it has a copy.
    if (!finestra || (senza_nome(finestra->Caption) && voci_.count(finestra->numero) == 0)) continue;
    voce& v = voci_[finestra->numero];
    v.doc = finestra.get();
    v.resta = resta;
    std::string nota = nota_di(*finestra);
    if (v.nota != nota && prepara() && scrivi(file(finestra->numero, estensione_nota), nota)) v.nota = std::move(nota);
  }
}

void copieaperte::copia(const distipo& doc, voce& v) {
  v.doc = &doc;
  const fs::path nuova = file(doc.numero, estensione_incompleta);
  try {
    scrivi_copia(doc, nuova.string());
    fs::rename(nuova, file(doc.numero, estensione_copia));
    v.copiata = doc.dis.revisione();
  } catch (const RuntimeError&) {
  } catch (const std::bad_alloc&) {
  } catch (const fs::filesystem_error&) {
  }
  std::error_code ignorato;
  fs::remove(nuova, ignorato);
}

void copieaperte::ricopia(const distipo& doc) {
  const auto trovata = voci_.find(doc.numero);
  const bool nota = trovata != voci_.end() && trovata->second.doc == &doc;
  if (nota && trovata->second.copiata == doc.dis.revisione()) return;
  if (!nota) togli(doc.numero);
  if (prepara()) copia(doc, voci_[doc.numero]);
}

// Whoever takes the folder away takes the copies with it: they are made again.
void copieaperte::rinnova() {
  if (descrittore_ < 0 || stessa(descrittore_, propria_)) return;
  ::close(std::exchange(descrittore_, -1));
  voci_.clear();
}

void copieaperte::aggiorna(const trelvobas& bas) {
  rinnova();
  for (const auto& finestra : bas.finestredocumenti) {
    if (!finestra) continue;
    if (da_copiare(*finestra)) {
      ricopia(*finestra);
    } else if (const auto v = voci_.find(finestra->numero); v != voci_.end() && v->second.doc == finestra.get()) {
      togli(finestra->numero);
    }
  }
  annota(bas);
}

namespace {

// There is nothing beside a name that no file can have.
bool accanto(const std::string& nome) {
  try {
    return !copia_recuperabile(nome).empty();
  } catch (const RuntimeError&) {
    return false;
  }
}

void raccogli(const fs::path& cartella, std::vector<disegnoperduto>& trovati) {
  std::set<fs::path> note;
  for (const auto& file : fs::directory_iterator(cartella)) {
    const fs::path estensione = file.path().extension();
    if (estensione == estensione_nota || estensione == estensione_copia) {
      note.insert(fs::path(file.path()).replace_extension(estensione_nota));
    }
  }
  for (const fs::path& nota : note) {
    disegnoperduto perduto = leggi_nota(nota);
    if (!perduto.copia.empty() || accanto(perduto.nome)) {
      trovati.push_back(std::move(perduto));
    } else {
      copieaperte::dimentica(perduto);
    }
  }
}

// By folder, then by number.
bool prima(const disegnoperduto& a, const disegnoperduto& b) {
  const auto ordine = [](const disegnoperduto& p) {
    return std::tuple(p.nota.parent_path().string(), p.nota.native().size(), p.nota.native());
  };
  return ordine(a) < ordine(b);
}

}  // namespace

std::vector<disegnoperduto> copieaperte::perduti() const {
  std::vector<disegnoperduto> trovati;
  std::error_code errore;
  for (fs::directory_iterator cartella(radice_ / cartella_copie, errore), fine; !errore && cartella != fine;
       cartella.increment(errore)) {
    const int descrittore = blocca(cartella->path());
    if (descrittore < 0) continue;
    try {
      raccogli(cartella->path(), trovati);
    } catch (const fs::filesystem_error&) {
    }
    ::close(descrittore);
  }
  std::sort(trovati.begin(), trovati.end(), prima);
  return trovati;
}

void copieaperte::dimentica(const disegnoperduto& perduto) {
  std::error_code ignorato;
  for (const char* estensione : {estensione_copia, estensione_nota, estensione_incompleta}) {
    fs::remove(fs::path(perduto.nota).replace_extension(estensione), ignorato);
  }
  fs::remove(perduto.nota.parent_path(), ignorato);
  fs::remove(perduto.nota.parent_path().parent_path(), ignorato);
}

}  // namespace trelvo
