#include "viewer/help_window.h"

#include <QAction>
#include <QPrintDialog>
#include <QPrinter>
#include <QToolBar>

namespace cserko {

namespace {

constexpr int smallest_zoom = -6;
constexpr int largest_zoom = 20;
constexpr int reading_size = 15; // points

} // namespace

HelpWindow::HelpWindow() : browser_(new HelpBrowser(this)) {
  setWindowTitle("Súgó");
  resize(900, 700);
  setCentralWidget(browser_);
  QFont font("Liberation Serif");
  font.setStyleHint(QFont::Serif);
  font.setPointSize(reading_size);
  browser_->setFont(font);
  QPalette colors = browser_->palette();
  colors.setColor(QPalette::Base, QColor(255, 248, 231));
  colors.setColor(QPalette::Text, QColor(59, 36, 20));
  browser_->setPalette(colors);
  add_actions();
  connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
    const QString title = browser_->documentTitle();
    setWindowTitle(title.isEmpty() ? "Súgó" : title);
  });
}

void HelpWindow::open(const QString& path) { browser_->open(path); }

void HelpWindow::add_actions() {
  QToolBar* bar = addToolBar("Súgó");
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  const auto add = [&](const QString& text, const QKeySequence& key, auto action) {
    QAction* entry = bar->addAction(text);
    entry->setShortcut(key);
    entry->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ")");
    connect(entry, &QAction::triggered, this, action);
    return entry;
  };
  QAction* back = add("Vissza", QKeySequence(Qt::ALT | Qt::Key_Left), [this] { browser_->backward(); });
  back->setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  add("Nagyobb betű", QKeySequence::ZoomIn, [this] { zoom(1); });
  add("Kisebb betű", QKeySequence::ZoomOut, [this] { zoom(-1); });
  add("Nyomtatás", QKeySequence::Print, [this] { print_page(); });
  add("Bezárás", QKeySequence(Qt::Key_Escape), [this] { close(); });
}

void HelpWindow::zoom(int steps) {
  const int wanted = qBound(smallest_zoom, zoom_steps_ + steps, largest_zoom);
  browser_->zoomIn(wanted - zoom_steps_);
  zoom_steps_ = wanted;
}

void HelpWindow::print_page() {
  QPrinter printer;
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) browser_->print(&printer);
}

} // namespace cserko
