#include "frmabout.h"

#include "accessiblenames.h"
#include "htmlgenerator.h"
#include "projectmodel.h"
#include "windowtexts.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace orvelin {

namespace {

QLabel* addLabel(const char* name, QVBoxLayout& column, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    column.addWidget(label);
    return label;
}

} // namespace

FrmAbout::FrmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setModal(true);

    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("picIcon"));
    icon->setPixmap(QApplication::windowIcon().pixmap(64, 64));
    icon->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    QLabel* program = addLabel("lblProgram", *column, this);
    QFont big = program->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    program->setFont(big);
    QLabel* version = addLabel("lblVersion", *column, this);
    column->addSpacing(6);
    QLabel* description = addLabel("lblDescription", *column, this);
    description->setWordWrap(true);
    column->addSpacing(6);
    addLabel("lblCopyright", *column, this);
    QLabel* web = addLabel("lblWebAddress", *column, this);
    web->setTextFormat(Qt::RichText);
    web->setOpenExternalLinks(true);
    web->setTextInteractionFlags(Qt::TextBrowserInteraction);
    column->addStretch(1);

    auto* ok = new QPushButton(this);
    ok->setObjectName(QStringLiteral("btnOk"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    // The icon stands before the texts: on the left, or on the right in a right-to-left
    // language, as the layout places it.
    auto* body = new QHBoxLayout;
    body->setSpacing(18);
    body->addWidget(icon, 0, Qt::AlignTop);
    body->addLayout(column, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 14);
    layout->setSpacing(14);
    layout->addLayout(body, 1);
    layout->addLayout(buttons);

    showWindowTexts(*this, {TextSection::About});
    // The version reads left to right inside any sentence: "1.0  Beta 6", never
    // "Beta 6  1.0" in a right-to-left one.
    const QString isolated =
        QChar(0x2066) + QString::fromLatin1(kVersionText) + QChar(0x2069); // LRI ... PDI
    version->setText(uiText("frmAbout", "#version").arg(isolated));
    const QString address = QString::fromLatin1(kMakerWebAddress);
    QString shown = address;
    shown.remove(QRegularExpression(QStringLiteral("^https?://")));
    web->setText(uiText("frmAbout", "#webAddress")
                     .toHtmlEscaped()
                     .arg(QStringLiteral("<a href=\"%1\">%2</a>").arg(address, shown)));
    description->setMinimumWidth(360);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    nameControls(*this);
}

} // namespace orvelin
