// Opening and painting of big drawings.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "commands/zoom.h"
#include "files/dis_documento.h"
#include "programma_bench.h"
#include "view/redraw.h"

namespace trelvo {
namespace {

constexpr double lato = 1000;

// Short lines, each of about twenty pixels when all are in view.
void riempi_di_linee(distipo& doc, int numero) {
  std::mt19937 caso(1);
  std::uniform_real_distribution<double> dove(0, lato);
  std::uniform_real_distribution<double> quanto(-12, 12);
  for (int i = 0; i < numero; ++i) {
    Linea l;
    l.Xi = dove(caso);
    l.Yi = dove(caso) * 0.6;
    l.Xf = l.Xi + quanto(caso);
    l.Yf = l.Yi + quanto(caso);
    l.colorelinea = static_cast<std::int32_t>(caso() & 0xFFFFFF);
    doc.dis.collLinee.aggiungi(l);
  }
  doc.cmd.statooggetti = 1;
}

std::string disegno_di_linee(int numero) {
  const std::string nome = cartella_bench() + "/linee" + std::to_string(numero) + ".DIS";
  if (std::filesystem::exists(nome)) return nome;
  programma p(cartella_bench());
  riempi_di_linee(p.doc(), numero);
  p.doc().Caption = nome;
  selzoom(p.doc(), -12, -12, lato + 12, lato * 0.6 + 12);
  salvafile(p.doc());
  return nome;
}

void apri_linee(benchmark::State& stato) {
  const std::string nome = disegno_di_linee(static_cast<int>(stato.range(0)));
  for (auto _ : stato) {
    programma p(cartella_bench());
    p.doc().Caption = nome;
    leggifile(p.doc());
    benchmark::DoNotOptimize(p.doc().surface.Image().pixels.data());
  }
  stato.SetItemsProcessed(stato.iterations() * stato.range(0));
}

void salva_linee(benchmark::State& stato) {
  programma p(cartella_bench());
  riempi_di_linee(p.doc(), static_cast<int>(stato.range(0)));
  p.doc().Caption = cartella_bench() + "/salvato.DIS";
  for (auto _ : stato) salvafile(p.doc());
  stato.SetItemsProcessed(stato.iterations() * stato.range(0));
}

void ridisegna_linee(benchmark::State& stato) {
  programma p(cartella_bench());
  riempi_di_linee(p.doc(), static_cast<int>(stato.range(0)));
  selzoom(p.doc(), -12, -12, lato + 12, lato * 0.6 + 12);
  for (auto _ : stato) redraw(p.doc());
  stato.SetItemsProcessed(stato.iterations() * stato.range(0));
}

BENCHMARK(apri_linee)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(salva_linee)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(ridisegna_linee)->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace trelvo

BENCHMARK_MAIN();
