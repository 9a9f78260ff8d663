#include "viewer/help_window.h"

#include <QAction>
#include <QPrintDialog>
#include <QPrinter>
#include <QToolBar>

namespace cserko {

namespace {

const QColor paper(255, 248, 231);
const QColor ink(59, 36, 20);

constexpr const char* bar_style =
    "QToolBar { background: #f6e6c4; border: none; padding: 6px; spacing: 8px; }"
    "QToolButton { color: #3b2414; background: #fff8e7; border: 1px solid #b09a7a; border-radius: 8px;"
    "              padding: 6px 16px; font-family: 'Liberation Serif'; font-size: 13pt; }"
    "QToolButton:hover { background: #fbeacb; }"
    "QToolButton:focus { border: 2px solid #1f6f68; }"
    "QToolButton:disabled { color: #a08b70; background: #f6e6c4; }";

QList<QKeySequence> larger_keys() { return {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)}; }

} // namespace

HelpWindow::HelpWindow() : browser_(new HelpBrowser(this)) {
  setWindowTitle("Súgó");
  resize(900, 700);
  setCentralWidget(browser_);
  setContextMenuPolicy(Qt::NoContextMenu);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, paper);
  colors.setColor(QPalette::WindowText, ink);
  colors.setColor(QPalette::Base, paper);
  colors.setColor(QPalette::Text, ink);
  setPalette(colors);
  add_actions();
  connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
    const QString title = browser_->documentTitle();
    setWindowTitle(title.isEmpty() ? "Súgó" : "Súgó – " + title);
  });
}

void HelpWindow::open(const QString& path) { browser_->open(path); }

void HelpWindow::add_actions() {
  QToolBar* bar = addToolBar("Súgó");
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  bar->setStyleSheet(bar_style);
  const auto add = [&](const QString& text, const QList<QKeySequence>& keys, auto action) {
    QAction* entry = bar->addAction(text);
    entry->setShortcuts(keys);
    entry->setToolTip(text + " (" + keys.first().toString(QKeySequence::NativeText) + ")");
    connect(entry, &QAction::triggered, this, action);
    return entry;
  };
  QAction* back = add("Vissza", {QKeySequence(Qt::ALT | Qt::Key_Left), QKeySequence(Qt::Key_Backspace)},
                      [this] { browser_->backward(); });
  back->setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  add("Nagyobb betű", larger_keys(), [this] { browser_->zoom(1); });
  add("Kisebb betű", {QKeySequence::ZoomOut}, [this] { browser_->zoom(-1); });
  add("Nyomtatás", {QKeySequence::Print}, [this] { print_page(); });
  add("Bezárás", {QKeySequence(Qt::Key_Escape)}, [this] { close(); });
}

void HelpWindow::print_page() {
  QPrinter printer;
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) browser_->print(&printer);
}

} // namespace cserko
