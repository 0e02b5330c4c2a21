// Makes a page of the manual readable by a browser: render_page FILE.md FILE.html
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTextDocument>
#include <cstdio>

namespace {

constexpr const char* kStyle =
    "<style>body { max-width: 46em; margin: 2em auto; padding: 0 1em; font: 1em/1.5 sans-serif; }\n"
    "img { max-width: 100%; } table { border-collapse: collapse; } td { border: 1px solid #999; padding: .2em .6em; }\n"
    "td p, li { margin: 0 !important; }</style>\n";

QString title_of(const QString& text) {
  static const QRegularExpression heading("^# (.+)$", QRegularExpression::MultilineOption);
  return heading.match(text).captured(1).toHtmlEscaped();
}

QString page_of(const QString& text) {
  QTextDocument document;
  document.setMarkdown(text, QTextDocument::MarkdownDialectGitHub);
  QString html = document.toHtml();
  // The document's own idea of a page's font gives way to the browser's.
  static const QRegularExpression body("<body[^>]*>");
  static const QRegularExpression page_link("href=\"([^\":]*)\\.md(#[^\"]*)?\"");
  html.replace(body, "<body>");
  html.replace(page_link, "href=\"\\1.html\\2\"");
  html.replace("</head>", QString(kStyle) + "<title>" + title_of(text) + "</title></head>");
  return html;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc != 3) {
    std::fputs("render_page FILE.md FILE.html\n", stderr);
    return 2;
  }
  const QGuiApplication application(argc, argv);
  QFile source(argv[1]);
  QFile target(argv[2]);
  if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly)) return 1;
  const QByteArray page = page_of(QString::fromUtf8(source.readAll())).toUtf8();
  return target.write(page) == page.size() ? 0 : 1;
}
