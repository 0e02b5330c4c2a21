// Import of text drawings and export of DXF files, in bytes of the file a second, with the most memory that the program
// held meanwhile, drawing included.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "files/accesso_file.h"
#include "files/dxf_comando.h"
#include "files/txt_documento.h"
#include "files/txt_lettura.h"
#include "memoria_bench.h"
#include "programma_bench.h"

namespace trelvo {
namespace {

constexpr double lato = 1000;

// Coordinates with the digits of drawings made by hand, or with all that a double has.
enum cifre { tre_decimali = 3, tutte = 17 };

class disegnotxt {
 public:
  explicit disegnotxt(cifre quante) : quante_(quante) {}

  void linea() {
    testo_ += "Linea\n" + std::to_string(caso_() & 0xFFFFFF) + "\n0\n0\n";
    punti(2);
  }
  // One of each class, in turn.
  void oggetto(int i) {
    switch (i % 7) {
      case 0:
        return linea();
      case 1:
        testo_ += "Superficie\n7\n255\n0\n1,5\n0\n4\n";
        return punti(4);
      case 2:
        testo_ += "Polilinea\n255\n0\n1\n6\n";
        return punti(6);
      case 3:
        testo_ += "Arco\n255\n0\n1\n";
        return punti(3);
      case 4:
        testo_ += "Cerchio\n7\n255\n0\n0\n0\n";
        return punti(2);
      case 5:
        testo_ += "Rettangolo\n7\n255\n0\n0\n0\n";
        return punti(4);
      default:
        testo_ += "Testo\n";
        punti(1);
        testo_ += "0\n1\n0\n0\n0\n10\n45\n0\n16777215\nArial\nquota del solaio\n";
    }
  }
  std::string contenuto() const { return "15\n5\nON\n1\nON\n1\n" + testo_; }

 private:
  void punti(int n) {
    for (int i = 0; i < 2 * n; ++i) {
      const double valore = dove_(caso_);
      std::string numero = quante_ == tutte ? shortest_text(valore) : fixed_text(valore, tre_decimali, {});
      if (quante_ == tutte) numero.replace(numero.find('.'), 1, ",");
      testo_ += numero + '\n';
    }
  }

  cifre quante_;
  std::mt19937 caso_{1};
  std::uniform_real_distribution<double> dove_{1, lato};
  std::string testo_;
};

// A file of so many objects, lines alone or all classes mixed.
std::string file_txt(int numero, bool misto, cifre quante) {
  const std::string nome =
      cartella_bench() + "/scambio" + std::to_string(numero) + (misto ? "m" : "l") + std::to_string(quante) + ".txt";
  if (std::filesystem::exists(nome)) return nome;
  disegnotxt d(quante);
  for (int i = 0; i < numero; ++i) misto ? d.oggetto(i) : d.linea();
  std::ofstream(nome, std::ios::binary) << d.contenuto();
  return nome;
}

std::string file_txt(const benchmark::State& stato) {
  return file_txt(static_cast<int>(stato.range(0)), stato.range(1) != 0, static_cast<cifre>(stato.range(2)));
}

void conta(benchmark::State& stato, const std::string& nome) {
  stato.counters["memoria"] = benchmark::Counter(static_cast<double>(memoria_massima()), benchmark::Counter::kDefaults,
                                                 benchmark::Counter::OneK::kIs1024);
  stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(std::filesystem::file_size(nome)));
  stato.SetItemsProcessed(stato.iterations() * stato.range(0));
}

// The file into objects.
void leggi_txt(benchmark::State& stato) {
  const std::string nome = file_txt(stato);
  azzera_memoria_massima();
  for (auto _ : stato) {
    fileaperto file(nome, fileaperto::modo::lettura);
    righetxt righe([&](std::span<std::byte> dove) { return file.leggi(dove); });
    leggi_testata_txt(righe);
    avanzamento letto(file.lunghezza(), [](double) {});
    disegno dis;
    leggi_oggetti_txt(righe, {}, letto, dis);
    benchmark::DoNotOptimize(dis.collLinee.numero());
  }
  conta(stato, nome);
}

// The whole import, until the drawing is on the screen.
void importa_txt(benchmark::State& stato) {
  const std::string nome = file_txt(stato);
  azzera_memoria_massima();
  for (auto _ : stato) {
    programma p(cartella_bench());
    p.doc().Caption = nome;
    leggitxt(p.doc());
    benchmark::DoNotOptimize(p.doc().surface.Image().pixels.data());
  }
  conta(stato, nome);
}

void esporta_dxf(benchmark::State& stato) {
  azzera_memoria_massima();
  programma p(cartella_bench());
  p.doc().Caption = file_txt(stato);
  leggitxt(p.doc());
  const std::string nome = cartella_bench() + "/scambio.dxf";
  for (auto _ : stato) {
    p.desktop.files = {nome};
    p.desktop.answers = {answer_yes};
    crea_dxf(p.doc());
  }
  conta(stato, nome);
}

void milione(benchmark::internal::Benchmark* b) {
  b->ArgNames({"oggetti", "misto", "cifre"})->Unit(benchmark::kMillisecond);
  for (const int misto : {0, 1}) {
    for (const cifre quante : {tre_decimali, tutte}) b->Args({1000000, misto, quante});
  }
}

BENCHMARK(leggi_txt)->Apply(milione);
BENCHMARK(importa_txt)->Apply(milione);
BENCHMARK(esporta_dxf)->Apply(milione);

}  // namespace
}  // namespace trelvo
