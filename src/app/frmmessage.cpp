#include "frmmessage.h"

#include "accessiblenames.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace orvelin {

FrmMessage::FrmMessage(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      m_text(new QLabel(this)), m_bar(new QProgressBar(this)) {
    setObjectName(QStringLiteral("frmMessage"));
    setWindowModality(Qt::NonModal);
    m_text->setObjectName(QStringLiteral("lblMessage"));
    m_text->setMinimumWidth(280);
    m_bar->setObjectName(QStringLiteral("barProgress"));
    m_bar->setRange(0, 100);
    m_bar->setTextVisible(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(10);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    nameControls(*this);
}

FrmMessage::~FrmMessage() {
    if (m_busy)
        QApplication::restoreOverrideCursor();
}

void FrmMessage::showProgress(const QString& title, const QString& text, int percent) {
    setWindowTitle(title);
    m_text->setText(text);
    m_bar->setVisible(percent >= 0);
    m_bar->setValue(percent < 0 ? 0 : (percent > 100 ? 100 : percent));
    if (!m_busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_busy = true;
    }
    if (!isVisible()) {
        adjustSize();
        if (parentWidget() != nullptr) {
            const QRect owner = parentWidget()->window()->frameGeometry();
            move(owner.center() - rect().center());
        }
        show();
        raise();
    }
    // The caller keeps the event loop busy until it is done; paint now so the
    // window is not a blank frame for the whole load.
    repaint();
}

void FrmMessage::hideProgress() {
    hide();
    if (m_busy) {
        QApplication::restoreOverrideCursor();
        m_busy = false;
    }
}

QString FrmMessage::text() const {
    return m_text->text();
}

int FrmMessage::percent() const {
    return m_bar->isVisibleTo(this) ? m_bar->value() : -1;
}

} // namespace orvelin
