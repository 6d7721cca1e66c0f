#include "fontfamilybox.h"

#include "windowtexts.h"

#include <QAbstractItemView>
#include <QFontDatabase>
#include <QFontInfo>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

namespace orvelin {

namespace {

/// The item role holding the family this machine draws a web font with, when it is
/// not the font itself.
constexpr int kSubstituteRole = Qt::UserRole + 1;

/// The families a page can count on, offered whether or not they are installed here.
const QStringList& webFonts() {
    static const QStringList fonts = {
        QStringLiteral("Arial"),       QStringLiteral("Times New Roman"),
        QStringLiteral("Courier New"), QStringLiteral("Verdana"),
        QStringLiteral("Georgia"),     QStringLiteral("Tahoma"),
        QStringLiteral("Trebuchet MS")};
    return fonts;
}

/// Shows, after a web font's name, which face stands in for it on this machine; the
/// item's text stays the bare name, which is what the button keeps.
class SubstituteDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QString substitute = index.data(kSubstituteRole).toString();
        if (!substitute.isEmpty())
            option->text += uiText("frmMain", "#fontDrawnAs").arg(substitute);
    }
};

} // namespace

FontFamilyBox::FontFamilyBox(QWidget* parent) : QComboBox(parent) {}

QStringList FontFamilyBox::families() {
    // A family installed from several foundries is listed by the database once per
    // foundry ("C059 [urw]", "C059 [UKWN]"); the name a page uses has no foundry.
    static const QRegularExpression foundry(QStringLiteral("\\s*\\[[^\\]]*\\]$"));
    QStringList families = webFonts();
    for (QString family : QFontDatabase::families())
        families << family.remove(foundry);
    families.removeDuplicates();
    std::sort(families.begin(), families.end(), [](const QString& a, const QString& b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    });
    return families;
}

QString FontFamilyBox::substitute(const QString& family) {
    const QString drawn = QFontInfo(QFont(family)).family();
    return drawn.compare(family, Qt::CaseInsensitive) == 0 ? QString() : drawn;
}

void FontFamilyBox::fillFamilies() {
    if (m_filled)
        return;
    m_filled = true;
    const QString shown = currentText();
    // Filling is no edit: the panel must not take the first family as a chosen font.
    const QSignalBlocker quiet(this);
    setItemDelegate(new SubstituteDelegate(this));
    addItems(families());
    int widest = 0;
    for (const QString& font : webFonts()) {
        const QString substitute = FontFamilyBox::substitute(font);
        setItemData(findText(font), substitute, kSubstituteRole);
        widest = std::max(widest, fontMetrics().horizontalAdvance(
                                      font + uiText("frmMain", "#fontDrawnAs").arg(substitute)));
    }
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    // The popup is as wide as its longest entry, whatever the width of the box.
    view()->setMinimumWidth(widest + 48);
    const int index = findText(shown);
    if (index >= 0)
        setCurrentIndex(index);
    // A typed name that no installed family matches stays as typed.
    setEditText(shown);
}

void FontFamilyBox::showPopup() {
    fillFamilies();
    QComboBox::showPopup();
}

void FontFamilyBox::focusInEvent(QFocusEvent* event) {
    fillFamilies();
    QComboBox::focusInEvent(event);
}

void FontFamilyBox::wheelEvent(QWheelEvent* event) {
    fillFamilies();
    QComboBox::wheelEvent(event);
}

} // namespace orvelin
