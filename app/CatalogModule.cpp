// Running an item's routines.
#include "app/CatalogModule.h"

#include "pages/TweakEngine.h"

namespace korvane {

void CCatalogModule::Show(int id) {
    const Tweak& tweak = *findTweak(id);
    if (!tweak.hasShow() || !host_.hasPage(tweak.page)) {
        return;
    }
    PageContext context(host_, platform_, tweak);
    if (tweak.isCategory()) {
        showOverview(context);
    } else {
        showTweak(context);
    }
}

void CCatalogModule::Apply(int id) {
    const Tweak& tweak = *findTweak(id);
    if (tweak.hasApply() && host_.hasPage(tweak.page)) {
        PageContext context(host_, platform_, tweak);
        applyTweak(context);
    }
}

}  // namespace korvane
