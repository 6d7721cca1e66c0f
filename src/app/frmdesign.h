#pragma once

#include "buttonlist.h"
#include "designview.h"
#include "imagecache.h"
#include "projectmodel.h"
#include "surfacezoom.h"
#include "userinterface.h"

#include <QPointer>
#include <QWidget>
#include <array>
#include <memory>
#include <vector>

class QActionGroup;
class QCheckBox;
class QLabel;
class QMenuBar;
class QMenu;
class QToolBar;
class QMouseEvent;
class QPushButton;
class QScrollArea;
class QWheelEvent;

namespace orvelin {

class AppletArea;
class ButtonPicture;
class LabelPositioner;
class SizerHandle;

/**
 * The design window `frmDesign`: the applet area as the applet will show it, one picture
 * per button in z-order, the four resize handles and the label positioner of the current
 * button, and the window's own commands. It reads the project, the selection of the
 * button list and the model's CurrentState; it never keeps a selection of its own.
 * The surface can be zoomed (50% to 400%); records stay in applet pixels and every
 * widget is placed from them through the one SurfaceZoom.
 *
 * Commands and mouse input leave as signals; each mouse handler is also a virtual
 * function (named like the event it answers), so the manipulation of buttons can be
 * added by connecting to the signals or by overriding.
 */
class FrmDesign : public QWidget, public DesignView {
    Q_OBJECT

public:
    /// Space around the applet area, so that handles of a button at the edge are seen.
    static constexpr int kMargin = 12;

    FrmDesign(ProjectModel& model, ButtonList& list, UserInterface* ui = nullptr,
              QWidget* parent = nullptr);
    ~FrmDesign() override;

    // DesignView
    void LoadButton(int index) override;
    void hideLastButton(int index) override;
    void clearButtons() override;
    void RedrawButton(int index, bool placeHandles, bool placePositioner,
                      bool keepGeometry) override;
    void redrawAll() override;
    void UpdateTransparentBtns() override;
    void appletChanged() override;
    void hideMarks() override;
    void moveButton(int index, bool repaintTransparent) override;
    void placeMarks(int index) override;
    void selectionChanged() override;
    void setOnTop(bool onTop) override;

    /// Places the four handles around button `index` and raises them above the pictures.
    void moveSizer(int index);
    void showSizers();
    void hideSizers();
    /// Places the label positioner on the current state's label position of button
    /// `index`; hides it while that state centres its label.
    void moveLabelPositioner(int index);

    /// `pButtons(i)`; null when button `index` has no picture.
    ButtonPicture* pButtons(int index) const;
    int pictureCount() const { return static_cast<int>(m_pictures.size()); }
    SizerHandle* picSizer(int handle) const;
    LabelPositioner* labelPositioner() const { return m_positioner; }
    /// The widget the handles and the positioner live on; the applet area sits on it at
    /// (kMargin, kMargin).
    QWidget* surface() const { return m_surface; }
    AppletArea* appletArea() const { return m_area; }
    ImageCache& images() { return m_images; }

    /// While set, a picture's change of size does not repaint it.
    bool noRedrawOnResize() const { return m_noRedrawOnResize; }
    void setNoRedrawOnResize(bool on) { m_noRedrawOnResize = on; }
    /// When set, the next close really closes (and clears the flag); otherwise closing
    /// only hides the window.
    void setForceUnload(bool on) { m_forceUnload = on; }

    /// chkNoBackGround, set from the stored value without announcing it.
    bool noBackGround() const { return m_noBackGround; }
    void setNoBackGround(bool on);

    /// The Arrange menu, on the window's menu bar after View, and its toolbar above the
    /// surface.
    void addArrangeTools(QMenu* menu, QToolBar* tools);

    /// The zoom of the surface: a view setting, neither part of the project nor an
    /// undo step. Pictures, handles and the positioner are placed again at once.
    const SurfaceZoom& zoom() const { return m_zoom; }
    void setZoom(int percent);
    /// `mnuView`: zoom in, zoom out, 100% and the zoom levels.
    QMenu* mnuView() const { return m_mnuView; }
    /// Where the picture of button `index` stands on the applet area at this zoom.
    QRect pictureRect(int index) const;

    /// Shows the texts in force again, the ones it puts together too (the zoom, the
    /// zoom levels), and announces textsChanged for the tools on the window. Called
    /// after a change of language.
    void retranslate();

    /// How many times button pictures were painted since the window was made.
    int paintCount() const { return m_paintCount; }

signals:
    void btnAddBtnClicked();
    void btnDuplicateClicked();
    void btnRemoveClicked();
    void btnViewHtmlClicked();
    /// chkNoBackGround was clicked; the new value is to be stored.
    void noBackGroundClicked(bool checked);
    /// The window is being closed (Form_Unload): the place to save its geometry.
    void unloading();
    /// The zoom changed, in percent.
    void zoomChanged(int percent);
    /// The window's texts were shown again (retranslate): the tools that put texts
    /// together on it show theirs again.
    void textsChanged();

    // Mouse input, with the event's position relative to the widget named.
    void buttonMouseDown(int index, QMouseEvent* event);
    void buttonMouseMove(int index, QMouseEvent* event);
    void buttonMouseUp(int index, QMouseEvent* event);
    void sizerMouseDown(int handle, QMouseEvent* event);
    void sizerMouseMove(int handle, QMouseEvent* event);
    void sizerMouseUp(int handle, QMouseEvent* event);
    void positionerMouseDown(QMouseEvent* event);
    void positionerMouseMove(QMouseEvent* event);
    void positionerMouseUp(QMouseEvent* event);
    /// A press on the surface outside every button (Form_MouseDown).
    void surfaceMouseDown(QMouseEvent* event);

protected:
    virtual void pButtons_MouseDown(int index, QMouseEvent* event);
    virtual void pButtons_MouseMove(int index, QMouseEvent* event);
    virtual void pButtons_MouseUp(int index, QMouseEvent* event);
    /// A picture changed size: painted again unless NoRedrawOnResize is set.
    virtual void pButtons_Resize(int index);
    virtual void picSizer_MouseDown(int handle, QMouseEvent* event);
    virtual void picSizer_MouseMove(int handle, QMouseEvent* event);
    virtual void picSizer_MouseUp(int handle, QMouseEvent* event);
    virtual void picLabelPositioner_MouseDown(QMouseEvent* event);
    virtual void picLabelPositioner_MouseMove(QMouseEvent* event);
    virtual void picLabelPositioner_MouseUp(QMouseEvent* event);
    virtual void Form_MouseDown(QMouseEvent* event);

    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWindow();
    /// Paints button `index` into its picture: DrawPix, DrawLabel, DrawBorder and the
    /// multi-selection marker.
    void paintPicture(int index);
    void resizeSurface();
    void buildViewMenu();
    /// The zoom label and the zoom levels, from the texts in force.
    void showComposedTexts();
    static QString zoomText(int percent);
    /// Ctrl+wheel on the surface: zooms by whole notches and keeps the applet point
    /// under the pointer where it is.
    void wheelZoom(QWheelEvent* event);

    ProjectModel& m_model;
    ButtonList& m_list;
    std::unique_ptr<UserInterface> m_ui; ///< label errors, one for each user action
    ImageCache m_images;

    QScrollArea* m_scroll = nullptr;
    QWidget* m_surface = nullptr;
    AppletArea* m_area = nullptr;
    std::vector<QPointer<ButtonPicture>> m_pictures; ///< picture i at [i - 1]
    std::vector<bool> m_markers; ///< whether picture i was painted with the group marker
    std::array<SizerHandle*, 4> m_sizers{};
    LabelPositioner* m_positioner = nullptr;
    QPushButton* m_btnAddBtn = nullptr;
    QPushButton* m_btnDuplicate = nullptr;
    QPushButton* m_btnRemove = nullptr;
    QPushButton* m_btnViewHtml = nullptr;
    QCheckBox* m_chkNoBackGround = nullptr;
    QMenuBar* m_menuBar = nullptr;
    QMenu* m_mnuView = nullptr;
    QActionGroup* m_zoomLevels = nullptr;
    QLabel* m_lblZoom = nullptr;

    SurfaceZoom m_zoom;
    int m_wheelAngle = 0; ///< turned but not yet a whole notch (fine-grained wheels)

    bool m_noRedrawOnResize = false;
    bool m_forceUnload = false;
    bool m_noBackGround = false;
    int m_paintCount = 0;
    int m_listening = 0;
};

} // namespace orvelin
