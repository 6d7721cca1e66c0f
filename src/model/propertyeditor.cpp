#include "propertyeditor.h"

#include "messages.h"
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

std::int16_t Flag(bool on) {
    return on ? 1 : 0;
}

} // namespace

bool IsUsableFontSize(const std::string& text) {
    const std::int16_t size = MakeCInt(text);
    return size >= 1 && size <= kMaxFontSize;
}

std::optional<std::int16_t> AutoBackImgStyle(bool autoTile, const std::optional<ImageSize>& image,
                                             int appletWidth, int appletHeight) {
    if (!autoTile)
        return std::nullopt;
    const bool smaller = image && image->width < appletWidth && image->height < appletHeight;
    return static_cast<std::int16_t>(smaller ? 1 : 0);
}

PropertyEditor::PropertyEditor(ProjectModel& model, ButtonList& list, UserInterface& ui,
                               Settings& settings, DesignView& design, EditorView& view)
    : m_model(model), m_list(list), m_ui(ui), m_settings(settings), m_design(design), m_view(view) {
}

void PropertyEditor::ForSelected(const std::function<void(ButtonRecord&, ButtonState)>& change) {
    if (m_model.Updating)
        return;
    const ButtonState state = m_model.CurrentState;
    bool changed = false;
    for (int i = 1; i <= m_model.ButtonCount; ++i) {
        if (!m_list.isSelected(i))
            continue;
        change(m_model.Button(i), state);
        const bool current = i == m_model.CurrentButton;
        m_design.RedrawButton(i, current, current, false);
        changed = true;
    }
    if (changed)
        m_model.Saved = false;
}

void PropertyEditor::SetX(const std::string& text) {
    ForSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.x = v; });
}

void PropertyEditor::SetY(const std::string& text) {
    ForSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.y = v; });
}

void PropertyEditor::SetWidth(const std::string& text) {
    ForSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.Width = v; });
}

void PropertyEditor::SetHeight(const std::string& text) {
    ForSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState) { b.Height = v; });
}

void PropertyEditor::SetLabel(const std::string& text) {
    ForSelected([&text](ButtonRecord& b, ButtonState s) { b.Label(s) = text; });
}

void PropertyEditor::SetLabelPosX(const std::string& text) {
    ForSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState s) { b.LabelPosX(s) = v; });
}

void PropertyEditor::SetLabelPosY(const std::string& text) {
    ForSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState s) { b.LabelPosY(s) = v; });
}

void PropertyEditor::SetPositionText(bool on) {
    if (m_model.Updating)
        return;
    ForSelected([v = Flag(on)](ButtonRecord& b, ButtonState s) { b.PositionText(s) = v; });
    // The position fields appear (or go) and show the current button's position.
    ShowProp(m_model.CurrentButton);
}

void PropertyEditor::SetCenterText(bool on) {
    SetPositionText(!on);
}

void PropertyEditor::SetFont(const std::string& family) {
    ForSelected([&family](ButtonRecord& b, ButtonState s) { b.Font(s) = family; });
}

void PropertyEditor::SetFontSize(const std::string& text) {
    if (!IsUsableFontSize(text))
        return;
    ForSelected([v = MakeCInt(text)](ButtonRecord& b, ButtonState s) { b.FontSize(s) = v; });
}

void PropertyEditor::SetFontStyle(bool bold, bool italic) {
    ForSelected([code = FontStyleCode(bold, italic)](ButtonRecord& b, ButtonState s) {
        b.FontStyle(s) = code;
    });
}

void PropertyEditor::SetFontColor(std::int32_t colour) {
    ForSelected([colour](ButtonRecord& b, ButtonState s) { b.FontColor(s) = colour; });
}

void PropertyEditor::SetBackColor(std::int32_t colour) {
    ForSelected([colour](ButtonRecord& b, ButtonState s) { b.BackColor(s) = colour; });
}

void PropertyEditor::SetImage(const std::string& path) {
    ForSelected([&path](ButtonRecord& b, ButtonState s) { b.Image(s) = path; });
}

void PropertyEditor::SetImgStyle(int style) {
    ForSelected([v = static_cast<std::int16_t>(style)](ButtonRecord& b, ButtonState s) {
        b.ImgStyle(s) = v;
    });
}

void PropertyEditor::SetSound(const std::string& path) {
    ForSelected([&path](ButtonRecord& b, ButtonState s) { b.Sound(s) = path; });
}

void PropertyEditor::SetURL(const std::string& text) {
    ForSelected([&text](ButtonRecord& b, ButtonState) { b.URL = text; });
}

void PropertyEditor::SetStatus(const std::string& text) {
    ForSelected([&text](ButtonRecord& b, ButtonState) { b.Status = text; });
}

void PropertyEditor::SetTarget(const std::string& text) {
    ForSelected([&text](ButtonRecord& b, ButtonState) { b.Target = text; });
}

void PropertyEditor::SetBorder(bool on) {
    ForSelected([v = Flag(on)](ButtonRecord& b, ButtonState) { b.Border = v; });
}

void PropertyEditor::SetTransparent(bool on) {
    ForSelected([v = Flag(on)](ButtonRecord& b, ButtonState) { b.noBackGround = v; });
}

void PropertyEditor::SetShowHand(bool on) {
    ForSelected([v = Flag(on)](ButtonRecord& b, ButtonState) { b.ShowHand = v; });
}

void PropertyEditor::SetHidden(bool on) {
    ForSelected([v = Flag(on)](ButtonRecord& b, ButtonState) { b.Hidden = v; });
}

void PropertyEditor::BrowseImage() {
    if (std::optional<std::string> path = m_ui.chooseOpenFile(kImageFilter)) {
        SetImage(*path);
        ShowProp(m_model.CurrentButton);
    }
}

void PropertyEditor::BrowseSound() {
    if (std::optional<std::string> path = m_ui.chooseOpenFile(kSoundFilter)) {
        SetSound(*path);
        ShowProp(m_model.CurrentButton);
    }
}

void PropertyEditor::AppletEdited() {
    m_model.Saved = false;
}

void PropertyEditor::BackgroundEdited() {
    m_model.Saved = false;
    m_design.AppletChanged();
    // Transparent buttons show the background under them, which has just changed.
    m_design.UpdateTransparentBtns();
}

bool PropertyEditor::SetAppletWidth(const std::string& text) {
    return SetAppletSize(m_model.AppletWidth, text);
}

bool PropertyEditor::SetAppletHeight(const std::string& text) {
    return SetAppletSize(m_model.AppletHeight, text);
}

bool PropertyEditor::SetAppletSize(std::int16_t& field, const std::string& text) {
    if (m_model.Updating)
        return true;
    const std::int16_t size = MakeCInt(text);
    if (size < 1)
        return false;
    if (size != field) {
        field = size;
        AppletEdited();
        CommitAppletSize();
    }
    return true;
}

void PropertyEditor::CommitAppletSize() {
    m_design.AppletChanged();
    m_design.UpdateTransparentBtns();
}

void PropertyEditor::SetBehaviour(int behaviour) {
    if (m_model.Updating)
        return;
    m_model.Behaviour = static_cast<std::int16_t>(behaviour == 1 ? 1 : 0);
    AppletEdited();
}

void PropertyEditor::SetDOWNBtn(bool on) {
    if (m_model.Updating)
        return;
    m_model.DOWNBtn = Flag(on);
    AppletEdited();
}

void PropertyEditor::SetBackGround(std::int32_t colour) {
    if (m_model.Updating)
        return;
    m_model.BackGround = colour;
    BackgroundEdited();
}

void PropertyEditor::SetBackImg(const std::string& path) {
    if (m_model.Updating)
        return;
    m_model.BackImg = path;
    BackgroundEdited();
}

void PropertyEditor::SetBackImgStyle(int style) {
    if (m_model.Updating)
        return;
    m_model.BackImgStyle = static_cast<std::int16_t>(style);
    BackgroundEdited();
}

void PropertyEditor::SetChosenBackImg(const std::string& path,
                                      const std::optional<ImageSize>& image) {
    if (m_model.Updating)
        return;
    m_model.BackImg = path;
    if (std::optional<std::int16_t> style =
            AutoBackImgStyle(m_settings.flag(SettingKey::AutoTile), image, m_model.AppletWidth,
                             m_model.AppletHeight))
        m_model.BackImgStyle = *style;
    BackgroundEdited();
    SetMainParams();
}

void PropertyEditor::BrowseBackImg() {
    if (std::optional<std::string> path = m_ui.chooseOpenFile(kImageFilter))
        SetChosenBackImg(*path, m_view.ImageSizeOf(*path));
}

void PropertyEditor::ShowProp(int index) {
    if (index < 1 || index > m_model.ButtonCount)
        return;
    UpdatingGuard guard(m_model);
    m_view.ShowProp(index, Messages()[Msg::PropertiesForButton] + std::to_string(index));
}

void PropertyEditor::SetMainParams() {
    UpdatingGuard guard(m_model);
    m_view.SetMainParams();
}

} // namespace orvelin
