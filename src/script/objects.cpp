#include "script/objects.h"

#include "script/failure.h"
#include "script/shown.h"

namespace trelvo {

namespace {

// One object, growing field by field: the two states first, then the class's own fields in the order of its slots.
class ObjectLine {
 public:
  ObjectLine(const char* name, std::size_t position, std::int16_t stato, std::int16_t stampare)
      : text_(std::string(name) + ' ' + std::to_string(position)) {
    (*this)("stato", stato)("stampare", stampare);
  }
  template <class T>
  ObjectLine& operator()(const char* name, const T& value) {
    text_ += ' ';
    text_ += name;
    text_ += '=';
    text_ += shown(value);
    return *this;
  }
  ObjectLine& vertices(const elencovertici& vertici) {
    (*this)("vertic", vertici.vertic());
    int i = 0;
    for (const vertice& v : vertici.tutti()) {
      text_ += " v" + std::to_string(++i) + '=' + shown(v.x) + ',' + shown(v.y);
    }
    return *this;
  }
  ObjectLine& marks(const elencovertici& vertici) {
    text_ += " sel=";
    for (int i = 1; i <= vertici.vertic(); ++i) text_ += vertici.selezionato(i) != 0 ? '1' : '0';
    return *this;
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

template <class Closed>
void closed_fields(ObjectLine& line, const Closed& o) {
  line.vertices(o.vertici)("perimet", o.perimet)("supf", o.supf)("colcont", o.colcont)("spescont", o.spescont);
  line("trattcont", o.trattcont)("campitura", o.campitura)("colocampitura", o.colocampitura).marks(o.vertici);
}

void fields(ObjectLine& line, const superficie& o) {
  line("hBmp", o.hBmp);
  closed_fields(line, o);
}

void fields(ObjectLine& line, const Rettangolo& o) { closed_fields(line, o); }

void fields(ObjectLine& line, const Linea& o) {
  line("speslinea", o.speslinea)("TipoLinea", o.TipoLinea)("colorelinea", o.colorelinea);
  line("Xi", o.Xi)("Yi", o.Yi)("Yf", o.Yf)("Xf", o.Xf);
  line("vert1_selez", o.vert1_selez)("vert2_selez", o.vert2_selez);
}

void fields(ObjectLine& line, const polilinea& o) {
  line.vertices(o.vertici)("colcont", o.colcont)("spescont", o.spescont)("trattcont", o.trattcont);
  line.marks(o.vertici)("lunghez", o.lunghez);
}

void fields(ObjectLine& line, const testo& o) {
  line("dimens_testo", o.dimens_testo)("carattere_testo", o.nome_carattere())("barrato_testo", o.barrato_testo);
  line("opaco_testo", o.opaco_testo)("sottolineato_testo", o.sottolineato_testo)("corsivo_testo", o.inclinato());
  line("bold_testo", o.bold_testo)("ang_testo", o.angolo())("nCartesto", o.nCartesto);
  line("colore_testo", o.colore_testo)("colore_opaco_testo", o.colore_opaco_testo);
  line("stringa_testo", o.stringa_testo)("pos_testox", o.pos_testox)("pos_testoy", o.pos_testoy);
}

void fields(ObjectLine& line, const Arco& o) {
  line("p1x", o.p1x)("p1y", o.p1y)("p2x", o.p2x)("p2y", o.p2y)("p3x", o.p3x)("p3y", o.p3y);
  line("colcont", o.colcont)("spescont", o.spescont)("trattcont", o.trattcont);
  line("vert1_selez", o.vert1_selez)("vert2_selez", o.vert2_selez);
}

void fields(ObjectLine& line, const Cerchio& o) {
  line("colcont", o.colcont)("spescont", o.spescont)("trattcont", o.trattcont);
  line("campitura", o.campitura)("colocampitura", o.colocampitura);
  line("Xcentro", o.Xcentro)("Ycentro", o.Ycentro)("raggio", o.raggio)("perimet", o.perimet)("supf", o.supf);
  line("Xpunto", o.Xpunto)("YPunto", o.YPunto);
}

template <class Class>
bool print_class(const disegno& dis, const char* name, const std::string& only, Output& output) {
  if (!only.empty() && only != name) return false;
  std::size_t position = 0;
  for (const Class& object : collezione_di<Class>(dis)) {
    ObjectLine line(name, ++position, object.stato, object.stampare);
    fields(line, object);
    output.line(line.text());
  }
  return true;
}

}  // namespace

void print_objects(const disegno& dis, const std::string& only, Output& output) {
  bool known = print_class<superficie>(dis, "superficie", only, output);
  known |= print_class<Rettangolo>(dis, "Rettangolo", only, output);
  known |= print_class<Linea>(dis, "Linea", only, output);
  known |= print_class<polilinea>(dis, "polilinea", only, output);
  known |= print_class<testo>(dis, "testo", only, output);
  known |= print_class<Arco>(dis, "Arco", only, output);
  known |= print_class<Cerchio>(dis, "Cerchio", only, output);
  if (!known) throw ScriptFailure("no class \"" + only + "\"");
}

}  // namespace trelvo
