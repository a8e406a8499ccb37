// The gallery's live controls, in every state that they can be in.

#include "tools/gallery/gallery.h"

namespace ventrel {

namespace {

constexpr Size buttonSize{78, 23};
constexpr int buttonStep = 86;
constexpr int rowHeight = 17;
constexpr Size toggleGroup{174, 130};
constexpr Size fieldGroup{196, 130};
constexpr Size textGroup{152, 130};
constexpr Point inGroup{10, 18}; // of a group's first control
constexpr int noId = 0;

} // namespace

void Gallery::createControls() {
    createButtons();
    createToggles();
    createFields();
    createTexts();
    createLists();
}

void Gallery::createButtons() {
    const Font& font = widgetFonts_.text;
    Point corner = layout_.buttons;
    const auto add = [&](int id, const char* text, bool isDefault, bool enabled) {
        createButton(desktop_, {.parent = main_,
                                .id = id,
                                .bounds = Rect::at(corner, buttonSize),
                                .text = text,
                                .font = &font,
                                .enabled = enabled,
                                .isDefault = isDefault});
        corner.x += buttonStep;
    };
    add(galleryMenuCommand, "&File", false, true);
    add(galleryDialogCommand, "&Dialog...", true, true);
    add(galleryBoxCommand, "Message &Box", false, true);
    add(noId, "Plain", false, true);
    add(noId, "Greyed", false, false);
    add(noId, "Greyed &too", true, false);
    constexpr Size tall{14, 160};
    createButton(
        desktop_,
        {.parent = main_, .bounds = Rect::at(layout_.tallButton, tall), .text = "E\rX\rE\rC", .font = &font});
}

void Gallery::createToggles() {
    const Font& font = widgetFonts_.text;
    createLabel(desktop_, {.parent = main_,
                           .bounds = Rect::at(layout_.toggles, toggleGroup),
                           .text = "Boxes and buttons",
                           .font = &font,
                           .isGroup = true});
    Point corner = layout_.toggles + inGroup;
    const auto add = [&](ToggleKind kind, const char* text, bool checked, bool enabled) {
        constexpr Size size{150, 16};
        const Toggle toggle =
            createToggle(desktop_, {main_, noId, Rect::at(corner, size), kind, text, &font});
        toggle.setChecked(checked);
        toggle.enable(enabled);
        corner.y += rowHeight + 1;
    };
    add(ToggleKind::checkBox, "Random cloud cover", true, true);
    add(ToggleKind::checkBox, "Direct course on entry", false, true);
    add(ToggleKind::checkBox, "Greyed", true, false);
    add(ToggleKind::radioButton, "Easy", false, true);
    add(ToggleKind::radioButton, "Normal", true, true);
    add(ToggleKind::radioButton, "Greyed", true, false);
}

void Gallery::createFields() {
    const Font& font = widgetFonts_.text;
    createLabel(desktop_, {.parent = main_,
                           .bounds = Rect::at(layout_.fields, fieldGroup),
                           .text = "Fields",
                           .font = &font,
                           .isGroup = true});
    Point corner = layout_.fields + inGroup;
    const auto add = [&](const char* name, const char* text, bool readOnly) {
        constexpr int indent = 62;
        constexpr Size size{114, 21};
        createLabel(desktop_, {.parent = main_,
                               .bounds = Rect::at(corner + Point{0, 4}, {indent, rowHeight}),
                               .text = name,
                               .font = &font});
        Edit edit =
            createEdit(desktop_, {main_, noId, Rect::at(corner + Point{indent, 0}, size), &font, readOnly});
        edit.setText(text);
        corner.y += size.height + 6;
        return edit;
    };
    add("Plain:", "A line of text", false);
    const Edit selected = add("Selected:", "chosen words", false);
    add("Read-only:", "+1125 points", true);
    add("Greyed:", "not now", false).window.enable(false);
    selected.selectAll();
    selected.window.focus();
}

void Gallery::createTexts() {
    const Font& font = widgetFonts_.text;
    createLabel(desktop_, {.parent = main_,
                           .bounds = Rect::at(layout_.texts, textGroup),
                           .text = "Texts",
                           .font = &font,
                           .isGroup = true});
    Point corner = layout_.texts + inGroup;
    const auto next = [&](const char* text, int height) {
        LabelSetup setup;
        setup.parent = main_;
        setup.bounds = Rect::at(corner, {textGroup.width - 2 * inGroup.x, height});
        setup.text = text;
        setup.font = &font;
        corner.y += height + 4;
        return setup;
    };
    createLabel(desktop_, next("Plain and &marked", 14));
    LabelSetup centred = next("centred", 14);
    centred.across = Align::middle;
    createLabel(desktop_, centred);
    LabelSetup atRight = next("Version 3.0", 14);
    atRight.across = Align::far;
    createLabel(desktop_, atRight);
    LabelSetup sunken = next("None Selected", 18);
    sunken.sunken = true;
    createLabel(desktop_, sunken);
    LabelSetup wrapped = next("Wrapped at the end of its line and cut off", 28);
    wrapped.wraps = true;
    createLabel(desktop_, wrapped);
}

void Gallery::createLists() {
    const Font& font = widgetFonts_.text;
    constexpr int tabUnits = 48;
    const ListBox columns = createListBox(desktop_, {main_, noId, layout_.columnsList, &font});
    columns.setTabWidth(tabUnits);
    for (const char* line : gallery_tables::flights) {
        columns.add(line);
    }
    columns.select(1);
    const ListBox sorted = createListBox(desktop_, {main_, noId, layout_.sortedList, &font, true});
    for (const char* name : gallery_tables::airports) {
        sorted.add(name);
    }
}

} // namespace ventrel
