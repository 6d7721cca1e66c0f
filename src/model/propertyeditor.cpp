#include "propertyeditor.h"

#include "textcatalogue.h"
#include "texthelpers.h"

namespace orvelin {

namespace {

/// Sets the model's Updating flag for as long as it lives, restoring the old value.
class UpdatingGuard {
public:
    explicit UpdatingGuard(ProjectModel& model) : m_model(model), m_old(model.Updating) {
        m_model.Updating = true;
    }
    ~UpdatingGuard() { m_model.Updating = m_old; }
    UpdatingGuard(const UpdatingGuard&) = delete;
    UpdatingGuard& operator=(const UpdatingGuard&) = delete;

private:
    ProjectModel& m_model;
    bool m_old;
};

std::int16_t flag(bool on) {
    return on ? 1 : 0;
}

} // namespace

bool isUsableFontSize(const std::string& text) {
    const std::int16_t size = MakeCInt(text);
    return size >= 1 && size <= kMaxFontSize;
}

std::optional<std::int16_t> autoBackImgStyle(bool autoTile, const std::optional<ImageSize>& image,
                                             int appletWidth, int appletHeight) {
    if (!autoTile)
        return std::nullopt;
    const bool smaller = image && image->width < appletWidth && image->height < appletHeight;
    return static_cast<std::int16_t>(smaller ? 1 : 0);
}

PropertyEditor::PropertyEditor(ProjectModel& model, ButtonList& list, UserInterface& ui,
                               Settings& settings, EditorView& view)
    : m_model(model), m_list(list), m_ui(ui), m_settings(settings), m_view(view) {}

void PropertyEditor::forSelected(const std::function<void(ButtonRecord&, ButtonState)>& change) {
    if (m_model.Updating)
        return;
    const ButtonState state = m_model.CurrentState;
    DocumentChange notice;
    notice.fromPanel = true;
    for (int i = 1; i <= m_model.ButtonCount; ++i) {
        if (!m_list.isSelected(i))
            continue;
        change(m_model.button(i), state);
        notice.button(i);
    }
    if (notice.buttons.empty())
        return;
    m_model.Saved = false;
    m_model.notices.announce(notice);
}

void PropertyEditor::setX(const std::string& text) {
    forSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.x = v; });
}

void PropertyEditor::setY(const std::string& text) {
    forSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.y = v; });
}

void PropertyEditor::setWidth(const std::string& text) {
    forSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.Width = v; });
}

void PropertyEditor::setHeight(const std::string& text) {
    forSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.Height = v; });
}

void PropertyEditor::setLabel(const std::string& text) {
    forSelected([&text](ButtonRecord& b, ButtonState s) { b.label(s) = text; });
}

void PropertyEditor::setLabelPosX(const std::string& text) {
    forSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState s) { b.labelPosX(s) = v; });
}

void PropertyEditor::setLabelPosY(const std::string& text) {
    forSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState s) { b.labelPosY(s) = v; });
}

void PropertyEditor::setPositionText(bool on) {
    if (m_model.Updating)
        return;
    forSelected([v = flag(on)](ButtonRecord& b, ButtonState s) { b.positionText(s) = v; });
    // The position fields appear (or go) and show the current button's position.
    ShowProp(m_model.CurrentButton);
}

void PropertyEditor::setCenterText(bool on) {
    setPositionText(!on);
}

void PropertyEditor::setFont(const std::string& family) {
    forSelected([&family](ButtonRecord& b, ButtonState s) { b.font(s) = family; });
}

void PropertyEditor::setFontSize(const std::string& text) {
    if (!isUsableFontSize(text))
        return;
    forSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState s) { b.fontSize(s) = v; });
}

void PropertyEditor::setFontStyle(bool bold, bool italic) {
    forSelected([code = fontStyleCode(bold, italic)](ButtonRecord& b, ButtonState s) {
        b.fontStyle(s) = code;
    });
}

void PropertyEditor::setFontColor(std::int32_t colour) {
    forSelected([colour](ButtonRecord& b, ButtonState s) { b.fontColor(s) = colour; });
}

void PropertyEditor::setBackColor(std::int32_t colour) {
    forSelected([colour](ButtonRecord& b, ButtonState s) { b.backColor(s) = colour; });
}

void PropertyEditor::setImage(const std::string& path) {
    forSelected([&path](ButtonRecord& b, ButtonState s) { b.image(s) = path; });
}

void PropertyEditor::setImgStyle(int style) {
    forSelected([v = static_cast<std::int16_t>(style)](ButtonRecord& b, ButtonState s) {
        b.ImgStyle(s) = v;
    });
}

void PropertyEditor::setSound(const std::string& path) {
    forSelected([&path](ButtonRecord& b, ButtonState s) { b.sound(s) = path; });
}

void PropertyEditor::setURL(const std::string& text) {
    forSelected([&text](ButtonRecord& b, ButtonState) { b.URL = text; });
}

void PropertyEditor::setStatus(const std::string& text) {
    forSelected([&text](ButtonRecord& b, ButtonState) { b.Status = text; });
}

void PropertyEditor::setTarget(const std::string& text) {
    forSelected([&text](ButtonRecord& b, ButtonState) { b.Target = text; });
}

void PropertyEditor::setBorder(bool on) {
    forSelected([v = flag(on)](ButtonRecord& b, ButtonState) { b.Border = v; });
}

void PropertyEditor::setTransparent(bool on) {
    forSelected([v = flag(on)](ButtonRecord& b, ButtonState) { b.noBackGround = v; });
}

void PropertyEditor::setShowHand(bool on) {
    forSelected([v = flag(on)](ButtonRecord& b, ButtonState) { b.ShowHand = v; });
}

void PropertyEditor::setHidden(bool on) {
    forSelected([v = flag(on)](ButtonRecord& b, ButtonState) { b.Hidden = v; });
}

void PropertyEditor::browseImage() {
    if (std::optional<std::string> path = m_ui.chooseOpenFile(texts()[Msg::ImageFilter])) {
        setImage(*path);
        ShowProp(m_model.CurrentButton);
    }
}

void PropertyEditor::browseSound() {
    if (std::optional<std::string> path = m_ui.chooseOpenFile(texts()[Msg::SoundFilter])) {
        setSound(*path);
        ShowProp(m_model.CurrentButton);
    }
}

void PropertyEditor::appletEdited(bool background, bool fromPanel) {
    m_model.Saved = false;
    DocumentChange notice;
    notice.applet = true;
    // Transparent buttons show the background under them.
    notice.background = background;
    notice.fromPanel = fromPanel;
    m_model.notices.announce(notice);
}

bool PropertyEditor::setAppletWidth(const std::string& text) {
    return setAppletSize(m_model.AppletWidth, text);
}

bool PropertyEditor::setAppletHeight(const std::string& text) {
    return setAppletSize(m_model.AppletHeight, text);
}

bool PropertyEditor::setAppletSize(std::int16_t& field, const std::string& text) {
    if (m_model.Updating)
        return true;
    const std::int16_t size = MakeCInt(text);
    if (size < 1)
        return false;
    if (size != field) {
        field = size;
        appletEdited(true);
    }
    return true;
}

void PropertyEditor::setBehaviour(int behaviour) {
    if (m_model.Updating)
        return;
    m_model.Behaviour = static_cast<std::int16_t>(behaviour == 1 ? 1 : 0);
    appletEdited();
}

void PropertyEditor::setDOWNBtn(bool on) {
    if (m_model.Updating)
        return;
    m_model.DOWNBtn = flag(on);
    appletEdited();
}

void PropertyEditor::setBackGround(std::int32_t colour) {
    if (m_model.Updating)
        return;
    m_model.BackGround = colour;
    appletEdited(true);
}

void PropertyEditor::setBackImg(const std::string& path) {
    if (m_model.Updating)
        return;
    m_model.BackImg = path;
    appletEdited(true);
}

void PropertyEditor::setBackImgStyle(int style) {
    if (m_model.Updating)
        return;
    m_model.BackImgStyle = static_cast<std::int16_t>(style);
    appletEdited(true);
}

void PropertyEditor::setChosenBackImg(const std::string& path,
                                      const std::optional<ImageSize>& image) {
    if (m_model.Updating)
        return;
    m_model.BackImg = path;
    if (std::optional<std::int16_t> style =
            autoBackImgStyle(m_settings.flag(SettingKey::AutoTile), image, m_model.AppletWidth,
                             m_model.AppletHeight))
        m_model.BackImgStyle = *style;
    // The placement may have changed: the applet controls show it.
    appletEdited(true, false);
}

void PropertyEditor::browseBackImg() {
    if (std::optional<std::string> path = m_ui.chooseOpenFile(texts()[Msg::ImageFilter]))
        setChosenBackImg(*path, m_view.imageSizeOf(*path));
}

void PropertyEditor::ShowProp(int index) {
    if (index < 1 || index > m_model.ButtonCount)
        return;
    UpdatingGuard guard(m_model);
    m_view.ShowProp(index, texts()[Msg::PropertiesForButton] + std::to_string(index));
}

void PropertyEditor::SetMainParams() {
    UpdatingGuard guard(m_model);
    m_view.SetMainParams();
}

} // namespace orvelin
