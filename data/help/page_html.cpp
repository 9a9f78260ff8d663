#include "data/help/page_html.h"

#include <QDir>
#include <QImageReader>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

namespace cserko {

namespace {

// Sizes are relative, so that the viewer's zoom reaches them all.
constexpr const char* style = "body { font-family: 'Liberation Serif', 'Times New Roman', serif; color: #3b2414; }\n"
                              "h1 { font-size: xx-large; color: #7a2e0e; margin-top: 18px; margin-bottom: 14px; }\n"
                              "h2 { font-size: x-large; color: #7a2e0e; margin-top: 30px; margin-bottom: 10px; }\n"
                              "h3 { font-size: large; color: #7a2e0e; margin-top: 22px; margin-bottom: 6px; }\n"
                              "p { margin-top: 8px; margin-bottom: 8px; line-height: 130%; }\n"
                              "p.child { font-size: large; line-height: 150%; }\n"
                              "p.picture { margin-top: 18px; margin-bottom: 18px; line-height: 100%; }\n"
                              "li { margin-top: 6px; margin-bottom: 6px; line-height: 130%; }\n"
                              "td, th { background-color: #fff8e7; text-align: left; }\n"
                              "th { background-color: #f6e6c4; }\n"
                              "code { font-family: 'Liberation Serif', 'Times New Roman', serif; "
                              "background-color: #f6e6c4; }\n"
                              "a { color: #8a3b12; }\n";

class HtmlWriter {
 public:
  HtmlWriter(const PageSource& page, const QHash<QString, QString>& names) : page_(page), names_(names) {}

  HtmlPage write() {
    QTextDocument document;
    document.setMarkdown(page_.markdown, QTextDocument::MarkdownDialectGitHub);
    for (auto at = document.rootFrame()->begin(); !at.atEnd(); ++at) {
      if (const auto* table = qobject_cast<QTextTable*>(at.currentFrame())) {
        close_list();
        write_table(*table);
      } else if (at.currentBlock().isValid()) {
        write_block(at.currentBlock());
      }
    }
    close_list();
    if (result_.title.isEmpty()) throw HelpError(page_.file, "has no heading");
    result_.html = QString("<!DOCTYPE html>\n<html lang=\"hu\">\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
                           "<style>\n%2</style>\n</head>\n<body>\n%3</body>\n</html>\n")
                       .arg(result_.title.toHtmlEscaped(), style, body_);
    return std::move(result_);
  }

 private:
  void write_block(const QTextBlock& block) {
    const QTextList* list = block.textList();
    if (list == nullptr || list != list_) close_list();
    if (list != nullptr) {
      write_item(block, *list);
    } else if (const int level = block.blockFormat().headingLevel(); level > 0) {
      write_heading(block, level);
    } else if (block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
      body_ += "<hr>\n";
    } else if (is_picture(block)) {
      body_ += "<p class=\"picture\" align=\"center\">" + inline_html(block) + "</p>\n";
    } else if (!block.text().trimmed().isEmpty()) {
      body_ += (to_child_ ? "<p class=\"child\">" : "<p>") + inline_html(block) + "</p>\n";
    }
  }

  void write_heading(const QTextBlock& block, int level) {
    if (level == 1) {
      if (!result_.title.isEmpty()) throw HelpError(page_.file, "has a second title");
      result_.title = block.text();
    } else {
      to_child_ = false;
    }
    body_ += QString("<h%1>%2</h%1>\n").arg(level).arg(inline_html(block, Within::Heading));
  }

  void write_item(const QTextBlock& block, const QTextList& list) {
    if (list.format().indent() > 1) throw HelpError(page_.file, "a list within a list: " + block.text());
    const bool numbered = list.format().style() == QTextListFormat::ListDecimal;
    if (list_ == nullptr) {
      list_ = &list;
      list_end_ = numbered ? "</ol>\n" : "</ul>\n";
      body_ += numbered ? "<ol>\n" : "<ul>\n";
    }
    body_ += "<li>" + inline_html(block) + "</li>\n";
  }

  void close_list() {
    if (list_ != nullptr) body_ += list_end_;
    list_ = nullptr;
  }

  void write_table(const QTextTable& table) {
    body_ += "<table style=\"margin-top: 8px; margin-bottom: 14px\" width=\"100%\" cellspacing=\"1\" cellpadding=\"8\" "
             "bgcolor=\"#d9c39a\">\n";
    for (int row = 0; row < table.rows(); ++row) {
      body_ += "<tr>";
      for (int column = 0; column < table.columns(); ++column) {
        const QString cell = inline_html(table.cellAt(row, column).firstCursorPosition().block(),
                                         row == 0 ? Within::Heading : Within::Text);
        body_ += QString(row == 0 ? "<th>%1</th>" : "<td>%1</td>").arg(cell);
      }
      body_ += "</tr>\n";
    }
    body_ += "</table>\n";
  }

  static bool is_picture(const QTextBlock& block) {
    auto at = block.begin();
    return !at.atEnd() && at.fragment().charFormat().isImageFormat() && (++at).atEnd();
  }

  // Headings are bold by themselves.
  enum class Within : std::uint8_t { Text, Heading };

  QString inline_html(const QTextBlock& block, Within within = Within::Text) {
    QString html;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      html += format.isImageFormat() ? picture_html(format.toImageFormat())
                                     : text_html(at.fragment().text(), format, within);
    }
    return html;
  }

  QString text_html(const QString& text, const QTextCharFormat& format, Within within) const {
    QString html = text.toHtmlEscaped();
    // Keys are shown as plates, with a little room about their names.
    if (format.fontFixedPitch()) html = "<code>&nbsp;" + html.replace(' ', "&nbsp;") + "&nbsp;</code>";
    if (format.fontWeight() >= QFont::Bold && within == Within::Text) html = "<b>" + html + "</b>";
    if (format.fontItalic()) html = "<i>" + html + "</i>";
    if (!format.anchorHref().isEmpty()) html = "<a href=\"" + link(format.anchorHref()) + "\">" + html + "</a>";
    return html;
  }

  QString link(const QString& target) const {
    const auto found = names_.constFind(QUrl::fromPercentEncoding(target.toUtf8()));
    if (found == names_.constEnd()) throw HelpError(page_.file, "a link leads to no other page: " + target);
    return QString::fromLatin1(QUrl::toPercentEncoding(*found));
  }

  QString picture_html(const QTextImageFormat& format) {
    const QString name = format.name();
    const QSize size = QImageReader(QDir(page_.folder).filePath(name)).size();
    const QString meaning = format.property(QTextFormat::ImageAltText).toString().toHtmlEscaped();
    // Pictures are made last, when the program shows what they are of. Until then the page is built without them.
    if (!size.isValid()) {
      result_.missing += name;
      return missing_picture + meaning + "]";
    }
    if (!result_.pictures.contains(name)) result_.pictures += name;
    return QString("<img src=\"%1\" width=\"%2\" height=\"%3\" alt=\"%4\">")
        .arg(name)
        .arg(size.width())
        .arg(size.height())
        .arg(meaning);
  }

  const PageSource& page_;
  const QHash<QString, QString>& names_;
  HtmlPage result_;
  QString body_;
  const QTextList* list_ = nullptr; ///< The list that is open.
  QString list_end_;
  bool to_child_ = true;
};

} // namespace

HtmlPage page_html(const PageSource& page, const QHash<QString, QString>& names) {
  return HtmlWriter(page, names).write();
}

} // namespace cserko
