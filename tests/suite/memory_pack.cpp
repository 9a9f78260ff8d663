#include "tests/suite/memory_pack.h"

#include "core/codepage.h"
#include "platform/bitmap.h"

#include <algorithm>
#include <array>

namespace cserko {

namespace {

struct Sample {
  TextView name;
  TextView syllables;
};

constexpr std::array<Sample, 51> samples{{
    {u"alma", u"al-ma"},
    {u"körte", u"kör-te"},
    {u"szilva", u"szil-va"},
    {u"dzsem", u"dzsem"},
    {u"kutya", u"ku-tya"},
    {u"asztal", u"asz-tal"},
    {u"kos", u"kos"},
    {u"sok", u"sok"},
    {u"papír", u"pa-pír"},
    {u"mamut", u"ma-mut"},
    {u"vonat", u"vo-nat"},
    {u"csillag", u"csil-lag"},
    {u"egér", u"e-gér"},
    {u"ló", u"ló"},
    {u"gyöngy", u"gyöngy"},
    {u"medve", u"med-ve"},
    {u"madár", u"ma-dár"},
    {u"róka", u"ró-ka"},
    {u"tűzoltó", u"tűz-ol-tó"},
    {u"pillangó", u"pil-lan-gó"},
    {u"szamóca", u"sza-mó-ca"},
    {u"bab", u"bab"},
    {u"nadrág", u"nad-rág"},
    {u"hal", u"hal"},
    {u"kacsa", u"ka-csa"},
    {u"zászló", u"zász-ló"},
    {u"hajó", u"ha-jó"},
    {u"béka", u"bé-ka"},
    {u"szék", u"szék"},
    {u"lámpa", u"lám-pa"},
    {u"virág", u"vi-rág"},
    {u"kenyér", u"ke-nyér"},
    {u"tojás", u"to-jás"},
    {u"cica", u"ci-ca"},
    {u"kakas", u"ka-kas"},
    {u"tehén", u"te-hén"},
    {u"labda", u"lab-da"},
    {u"könyv", u"könyv"},
    {u"ceruza", u"ce-ru-za"},
    {u"ablak", u"ab-lak"},
    {u"esernyő", u"e-ser-nyő"},
    {u"teknős", u"tek-nős"},
    {u"narancs", u"na-rancs"},
    // With these there are word chains of every kind.
    {u"karate", u"ka-ra-te"},
    {u"teke", u"te-ke"},
    {u"kefe", u"ke-fe"},
    {u"fekete", u"fe-ke-te"},
    {u"teve", u"te-ve"},
    {u"vese", u"ve-se"},
    {u"kerete", u"ke-re-te"},
    {u"utolsó", u"u-tol-só"},
}};

void put_text(MemoryFiles& files, TextView path, TextView content) {
  files.put(Text(app) + Text(path), to_cp1250(content));
}

// A black frame on white paper.
PixelImage colouring_page() {
  constexpr int side = 40;
  PixelImage page{side, side, {}};
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const int edge = std::min({x, y, side - 1 - x, side - 1 - y});
      page.pixels.push_back(edge == 4 || edge == 5 ? black : white);
    }
  }
  return page;
}

} // namespace

void put_record(MemoryFiles& files, int number, const Word& word) {
  const Text& name = word.név;
  const auto or_else = [](const Text& text, const Text& otherwise) { return text.empty() ? otherwise : text; };
  Text content;
  for (const Text& line :
       {u"1-" + to_text(number), name, Text(u"x"), or_else(word.angol, u"the " + name), or_else(word.szótagolt, name),
        name + u" meghatározása.", name + u" igaz állítása.", name + u" hamis állítása."}) {
    content += line + u"\r\n";
  }
  const Text base = Text(app) + u"kepek\\" + to_text(number);
  files.put(base + u".wms", to_cp1250(content));
  if (word.has_picture) files.put(base + u".wmf", "picture");
}

void put_many_records(MemoryFiles& files, int count) {
  const Text letters = u"aábcdeéfghiíjklmnoóöőprstuúüűvz";
  for (int i = 1; i <= count; ++i) {
    Text name;
    for (int rest = i * 7919 + 31 * 31; rest > 0; rest /= 31) name += letters[static_cast<std::size_t>(rest % 31)];
    name += Text(static_cast<std::size_t>(i % 5), u'k');
    put_record(files, i, {name, {}, {}, false});
  }
}

void put_sample_pack(MemoryFiles& files) {
  int number = 0;
  for (const Sample& sample : samples) {
    ++number;
    // One in ten has lost its picture.
    put_record(files, number, {Text(sample.name), {}, Text(sample.syllables), number % 10 != 0});
  }
  put_text(files, u"ms.skt", u"alam\rlepke\rmalac\rmalac\rsoka\r");
  put_text(files, u"betűpár.kvl", u"a-e\r\nk-l\r\nb-d\r\nm-n\r\nsz-s\r\n");
  for (const TextView file :
       {u"null.wav", u"cserko\\clack 1.wav", u"cserko\\moving.wav", u"cserko\\alarm.wav", u"hangok\\a.wav",
        u"hangok\\b.wav", u"hangok\\c.wav", u"hangok\\dob\\1.wav", u"hangok\\dob\\2.wav", u"dysmid\\a.mid",
        u"dysmid\\b.mid", u"dicskép\\1.wmf", u"dicskép\\2.wmf", u"dicskép\\3.png", u"irkep\\nyíl_bal.wmf",
        u"irkep\\nyíl_fel.wmf", u"irkep\\nyíl_jobb.wmf", u"irkep\\nyíl_le.wmf", u"irkep\\autó_bal.wmf"})
    put_text(files, file, u"x");
  put_text(files, u"irkep\\nyíl.swm", u"Merre mutat a nyíl\r\n");
  put_text(files, u"irkep\\autó.swm", u"Merre megy az autó\r\n");
  for (const TextView page : {u"cserko\\kifest\\0.kif", u"cserko\\kifest\\1.kif"})
    files.put(Text(app) + Text(page), write_bitmap(colouring_page()));
  put_text(files, u"cserko\\grathang.ini", u" 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\na.wav\r\nb.wav\r\n");
  put_text(files, u"cserko\\helyeshang.ini", u"b.wav\r\n");
  put_text(files, u"cserko\\hibahang.ini", u"c.wav\r\na.wav\r\n");
  put_text(files, u"cserko\\zenebeáll.ini", u" 1 \r\na.mid\r\nb.mid\r\n");
}

} // namespace cserko
