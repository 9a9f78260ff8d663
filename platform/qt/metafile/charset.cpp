#include "charset.h"

namespace cserko {

namespace {

/// The upper half of a code page and a closing zero. U+FFFD stands where a code is not used.
using CodePage = char16_t[129];

constexpr CodePage kCentralEuropean = {u"€\ufffd‚\ufffd„…†‡\ufffd‰Š‹ŚŤŽŹ\ufffd‘’“”•–—\ufffd™š›śťžź"
                                       u"\u00a0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00ad®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
                                       u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
                                       u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"};

constexpr CodePage kCyrillic = {u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\ufffd™љ›њќћџ"
                                u"\u00a0ЎўЈ¤Ґ¦§Ё©Є«¬\u00ad®Ї°±Ііґµ¶·ё№є»јЅѕї"
                                u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
                                u"абвгдежзийклмнопрстуфхцчшщъыьэюя"};

constexpr CodePage kWestern = {u"€\ufffd‚ƒ„…†‡ˆ‰Š‹Œ\ufffdŽ\ufffd\ufffd‘’“”•–—˜™š›œ\ufffdžŸ"
                               u"\u00a0¡¢£¤¥¦§¨©ª«¬\u00ad®¯°±²³´µ¶·¸¹º»¼½¾¿"
                               u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
                               u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ"};

constexpr CodePage kGreek = {
    u"€\ufffd‚ƒ„…†‡\ufffd‰\ufffd‹\ufffd\ufffd\ufffd\ufffd\ufffd‘’“”•–—\ufffd™\ufffd›\ufffd\ufffd\ufffd\ufffd"
    u"\u00a0΅Ά£¤¥¦§¨©\ufffd«¬\u00ad®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
    u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\ufffdΣΤΥΦΧΨΩΪΫάέήί"
    u"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\ufffd"};

constexpr CodePage kTurkish = {u"€\ufffd‚ƒ„…†‡ˆ‰Š‹Œ\ufffd\ufffd\ufffd\ufffd‘’“”•–—˜™š›œ\ufffd\ufffdŸ"
                               u"\u00a0¡¢£¤¥¦§¨©ª«¬\u00ad®¯°±²³´µ¶·¸¹º»¼½¾¿"
                               u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
                               u"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"};

constexpr CodePage kBaltic = {u"€\ufffd‚\ufffd„…†‡\ufffd‰\ufffd‹\ufffd¨ˇ¸\ufffd‘’“”•–—\ufffd™\ufffd›\ufffd¯˛\ufffd"
                              u"\u00a0\ufffd¢£¤\ufffd¦§Ø©Ŗ«¬\u00ad®Æ°±²³´µ¶·ø¹ŗ»¼½¾æ"
                              u"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
                              u"ąįāćäåęēčéźėģķīļšńņóōõö÷ųłśūüżž˙"};

const CodePage& code_page(int charset) {
  switch (charset) {
  case 1:
  case 238:
    return kCentralEuropean;
  case 161:
    return kGreek;
  case 162:
    return kTurkish;
  case 186:
    return kBaltic;
  case 204:
    return kCyrillic;
  default:
    return kWestern;
  }
}

} // namespace

QString decode_charset(QByteArrayView bytes, int charset) {
  const CodePage& page = code_page(charset);
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    text.append(code < 0x80 ? QChar(code) : QChar(page[code - 0x80]));
  }
  return text;
}

} // namespace cserko
