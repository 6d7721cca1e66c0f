#pragma once

#include <QComboBox>

namespace orvelin {

/**
 * The editable list of font families `lsFont`. Asking the font database for every
 * family installed is left until the list is first needed (its popup, the keyboard
 * focus, a wheel turn over it): until then the box shows the font typed or set, as it
 * does afterwards, and the designer's start-up does not wait for the enumeration.
 *
 * Each family is listed once, the common web fonts always, and a web font that this
 * machine draws with another face says which.
 */
class FontFamilyBox : public QComboBox {
    Q_OBJECT

public:
    explicit FontFamilyBox(QWidget* parent = nullptr);

    /// Fills the list with the installed families once, keeping the text shown.
    void fillFamilies();
    bool filled() const { return m_filled; }

    /// The families offered: the installed ones without their foundries, and the web
    /// fonts, each once, sorted without regard to case.
    static QStringList families();
    /// The family this machine draws `family` with, or empty when it is the font itself.
    static QString substitute(const QString& family);

    void showPopup() override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool m_filled = false;
};

} // namespace orvelin
