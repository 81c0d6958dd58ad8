#pragma once

#include "strings/string_table.h"

#include <QTextBrowser>

namespace tarnel {

/// `HelpView`: the page of the help that is read. A picture that is missing leaves a frame with the
/// words that stand for it.
class HelpView : public QTextBrowser {
    Q_OBJECT

  public:
    HelpView(const StringTable& table, QWidget* parent);

    /// Selects the next place, or the one before, where `words` stand, and goes on from the other
    /// end of the page. False if they stand nowhere.
    bool findNext(const QString& words, bool backwards);
    /// The size of the letters as it was at first.
    void resetZoom();
    /// How many times as large the letters are as at first.
    [[nodiscard]] double zoom() const;
    void setZoom(double times);
    /// Shows the page again, in the colours that are in use.
    void followDesktop();

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    [[nodiscard]] QString wordsFor(const QUrl& picture) const;
    [[nodiscard]] QPixmap frameFor(const QUrl& picture) const;

    const StringTable& texts;
    QString page; ///< as it stands in its file
};

} // namespace tarnel
