// A drawing to and from the bytes of its file, without a document.
#pragma once

#include <algorithm>
#include <string>

#include "files/dis_lettura.h"
#include "files/dis_scrittura.h"

namespace trelvo {

inline std::string bytes_of(const disegno& dis, reccomando& scratch, const testatadis& testata = {}) {
  std::string byte;
  scrivi_disegno(testata, dis, scratch, [&](std::span<const std::byte> dati) {
    byte.append(reinterpret_cast<const char*>(dati.data()), dati.size());
  });
  return byte;
}

// The object records alone, as a fresh document writes them.
inline std::string records_of(const disegno& dis) {
  reccomando scratch;
  return bytes_of(dis, scratch).substr(lunghezza_testata);
}

inline letturadis read_records(const std::string& record, disegno& dis) {
  std::size_t letti = 0;
  letturadis esito;
  leggi_oggetti(
      [&](std::span<std::byte> dove) {
        const std::size_t n = std::min(dove.size(), record.size() - letti);
        std::copy_n(reinterpret_cast<const std::byte*>(record.data()) + letti, n, dove.begin());
        letti += n;
        return n;
      },
      dis, esito);
  return esito;
}

inline std::size_t object_count(const disegno& dis) {
  return dis.collLinee.numero() + dis.collSuperfici.numero() + dis.collPolilinee.numero() + dis.collArchi.numero() +
         dis.collCerchi.numero() + dis.collRettangoli.numero() + dis.collTesti.numero();
}

template <class Classe>
Classe with_vertices(int numero) {
  Classe o;
  o.vertic(static_cast<std::int16_t>(numero));
  for (int i = 1; i <= numero; ++i) o.vertici.inserisci(i, 10 * i, i);
  return o;
}

}  // namespace trelvo
