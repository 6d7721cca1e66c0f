#pragma once

#include "browserlist.h"

#include <QDialog>
#include <vector>

class QListWidget;
class QPushButton;

namespace orvelin {

/**
 * The browser list dialog `frmBrowserSetup`: the browsers that "Test in Browser" can
 * open a page in. Entries are added, edited (in frmEditBrowser), removed and moved;
 * the first entry, the desktop's default browser, always stays first. The dialog
 * works on a copy; the caller stores browsers() after OK.
 */
class FrmBrowserSetup : public QDialog {
    Q_OBJECT

public:
    FrmBrowserSetup(std::vector<BrowserEntry> browsers, BrowserSearchPlaces places,
                    QWidget* parent = nullptr);

    const std::vector<BrowserEntry>& browsers() const { return m_browsers; }

private:
    void btnAdd_Click();
    void btnEdit_Click();
    void btnRemove_Click();
    void move(int step);
    void btnFind_Click();
    /// Fills the list from m_browsers and selects `row`.
    void showList(int row);
    void updateButtons();

    std::vector<BrowserEntry> m_browsers;
    BrowserSearchPlaces m_places;
    QListWidget* m_lstBrowsers = nullptr;
    QPushButton* m_btnEdit = nullptr;
    QPushButton* m_btnRemove = nullptr;
    QPushButton* m_btnUp = nullptr;
    QPushButton* m_btnDown = nullptr;
};

} // namespace orvelin
