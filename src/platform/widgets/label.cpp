#include "platform/widgets/label.h"

namespace ventrel {

struct Label::State {
    LabelSetup setup;
    Window window;

    void paintGroup(Canvas& canvas) const {
        constexpr int textIndent = 9;
        constexpr int textGap = 2;
        const Rect area = window.area();
        const int half = setup.font->lineHeight() / 2;
        drawGroupFrame(canvas, {area.left, area.top + half, area.right, area.bottom});
        if (setup.text.empty()) {
            return;
        }
        const TextLayout layout{.singleLine = true, .mnemonics = true};
        const Size size = measureText(*setup.font, setup.text, area.width(), layout);
        const Rect box = Rect::at({area.left + textIndent, area.top}, size);
        canvas.fill({box.left - textGap, box.top, box.right + textGap, box.bottom}, look::face);
        drawLabel(canvas, *setup.font, box, setup.text, true, layout);
    }

    void paint(Canvas& canvas) const {
        const Rect area = window.area();
        canvas.fill(area, look::face);
        if (setup.isGroup) {
            paintGroup(canvas);
            return;
        }
        Rect box = area;
        if (setup.sunken) {
            drawThinSunkenEdge(canvas, area);
            box = area.grownBy(-3);
        }
        const TextLayout layout{.across = setup.across,
                                .down = setup.sunken ? Align::middle : Align::near,
                                .wrap = setup.wraps,
                                .mnemonics = true};
        drawLabel(canvas, *setup.font, box, setup.text, true, layout);
    }
};

Label createLabel(Desktop& desktop, LabelSetup setup) {
    auto state = std::make_shared<Label::State>();
    state->setup = std::move(setup);
    WindowHandlers handlers;
    handlers.paint = [state](Canvas& canvas, const Rect&) { state->paint(canvas); };
    state->window = desktop.create({.parent = state->setup.parent,
                                    .id = state->setup.id,
                                    .bounds = state->setup.bounds,
                                    .handlers = std::move(handlers)});
    Label label;
    label.window = state->window;
    label.state_ = std::move(state);
    return label;
}

void Label::setText(std::string text) const {
    state_->setup.text = std::move(text);
    window.invalidate();
}

const std::string& Label::text() const {
    return state_->setup.text;
}

} // namespace ventrel
