#include "pdf_text.h"

#include <QProcess>
#include <QStringList>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace quillane::test {

namespace {

constexpr float TwipsPerPoint = 20;
constexpr float SameLine = 10;  // words of one line and one font differ by less

QByteArray Boxes(const QString& path) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")});
  if (!reader.waitForFinished() || reader.exitCode() != 0)
    throw std::runtime_error("pdftotext cannot read " + path.toStdString() + ": " +
                             reader.readAllStandardError().toStdString() +
                             reader.errorString().toStdString());
  return reader.readAllStandardOutput();
}

float Twips(const QXmlStreamAttributes& attributes, const char* name) {
  return attributes.value(QLatin1String(name)).toFloat() * TwipsPerPoint;
}

}  // namespace

std::vector<PdfPage> ReadPdf(const QString& path) {
  QXmlStreamReader xml(Boxes(path));
  xml.setEntityExpansionLimit(0);
  std::vector<PdfPage> pages;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const QXmlStreamAttributes at = xml.attributes();
    if (xml.name() == QLatin1String("page")) {
      pages.push_back({Twips(at, "width"), Twips(at, "height"), {}});
    } else if (xml.name() == QLatin1String("word") && !pages.empty()) {
      const PdfWord place{{}, Twips(at, "xMin"), Twips(at, "yMin"), Twips(at, "xMax"), Twips(at, "yMax")};
      pages.back().words.push_back(place);
      pages.back().words.back().text = xml.readElementText();
    }
  }
  if (xml.hasError())
    throw std::runtime_error("pdftotext wrote what cannot be read: " + xml.errorString().toStdString());
  return pages;
}

std::vector<PdfWord> FindText(const PdfPage& page, const QString& phrase) {
  const QStringList wanted = phrase.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  std::vector<PdfWord> found;
  if (wanted.isEmpty()) return found;
  const auto count = static_cast<size_t>(wanted.size());
  for (size_t first = 0; first + count <= page.words.size(); ++first) {
    const PdfWord& begin = page.words[first];
    bool same = true;
    for (size_t i = 0; i < count && same; ++i) {
      const PdfWord& word = page.words[first + i];
      same = word.text == wanted[static_cast<qsizetype>(i)] && std::abs(word.top - begin.top) < SameLine;
    }
    if (!same) continue;
    const PdfWord& end = page.words[first + count - 1];
    found.push_back({phrase, begin.left, begin.top, end.right, end.bottom});
  }
  return found;
}

bool HasTextAt(const PdfPage& page, const QString& phrase, float left, float top, float tolerance) {
  const std::vector<PdfWord> found = FindText(page, phrase);
  return std::any_of(found.begin(), found.end(), [&](const PdfWord& place) {
    return std::abs(place.left - left) <= tolerance && std::abs(place.top - top) <= tolerance;
  });
}

bool HasTextEndingAt(const PdfPage& page, const QString& phrase, float right, float top, float tolerance) {
  const std::vector<PdfWord> found = FindText(page, phrase);
  return std::any_of(found.begin(), found.end(), [&](const PdfWord& place) {
    return std::abs(place.right - right) <= tolerance && std::abs(place.top - top) <= tolerance;
  });
}

}  // namespace quillane::test
