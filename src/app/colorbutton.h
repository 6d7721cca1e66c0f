#pragma once

#include <QToolButton>
#include <cstdint>

namespace orvelin {

/**
 * A colour picker shown as a swatch: a click opens the colour dialog and a chosen
 * colour is reported as the model keeps colours, 0x00BBGGRR (red in the low byte).
 */
class ColorButton : public QToolButton {
    Q_OBJECT

public:
    explicit ColorButton(const QString& objectName, QWidget* parent = nullptr);

    std::int32_t colour() const { return m_colour; }
    /// Shows `colour` without reporting it.
    void setColour(std::int32_t colour);

signals:
    void colourChosen(std::int32_t colour);

private:
    void choose();
    void updateSwatch();

    std::int32_t m_colour = 0;
};

} // namespace orvelin
