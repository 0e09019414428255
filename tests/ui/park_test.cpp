#include <gtest/gtest.h>

#include <QImage>
#include <QWidget>

#include <cmath>

#include "ui/demo.h"
#include "ui/fieldview.h"
#include "ui/frmgame.h"

namespace tarvane {
namespace {

Ballpark Park(int left, int alleyLeft, int centre, int alleyRight, int right) {
    Ballpark park;
    park.LFFence = static_cast<std::int16_t>(left);
    park.AlleyLF = static_cast<std::int16_t>(alleyLeft);
    park.CFFence = static_cast<std::int16_t>(centre);
    park.AlleyRF = static_cast<std::int16_t>(alleyRight);
    park.RFFence = static_cast<std::int16_t>(right);
    return park;
}

TEST(ParkPlan, TheFenceRunsThroughItsKnownDistancesAndUnknownOnesAreUsual) {
    const ParkPlan odd(Park(302, 379, 390, 380, 0));
    EXPECT_DOUBLE_EQ(odd.Fence(-45), 302);
    EXPECT_DOUBLE_EQ(odd.Fence(-22.5), 379);
    EXPECT_DOUBLE_EQ(odd.Fence(0), 390);
    EXPECT_DOUBLE_EQ(odd.Fence(45), 315) << "not known";
    for (double degrees = -45; degrees <= 45; degrees += 1) {
        EXPECT_GT(odd.Fence(degrees), 290);
        EXPECT_LT(odd.Fence(degrees), 400);
    }
    EXPECT_NEAR(odd.FencePoint(-45).x, -302 / std::sqrt(2.0), 1e-9);
    EXPECT_NEAR(Feet(ParkPlan::Base(1), ParkPlan::Base(2)), 90, 0.01);
    EXPECT_NEAR(Feet(ParkPlan::Base(3), ParkPlan::Base(4)), 90, 0.01);
}

// The smallest and the biggest grounds that ever were, and everybody on them, stay on the picture.
TEST(ParkPlan, EveryParkFitsItsPictureAndItsMenStandInsideTheFence) {
    for (const Ballpark& ground : {Park(250, 300, 360, 300, 250), Park(360, 450, 505, 450, 360), Ballpark()}) {
        const ParkPlan plan(ground);
        for (double degrees = -45; degrees <= 45; degrees += 1.5) {
            const FieldPoint at = ParkPlan::OnPicture(plan.FencePoint(degrees));
            EXPECT_TRUE(at.x > 0.005 && at.x < 0.995 && at.y > 0.03 && at.y < 0.9) << degrees;
        }
        for (int number = 1; number <= 9; ++number) {
            const FieldPoint man = plan.Fielder(static_cast<Position>(number));
            EXPECT_LT(Feet({}, man), plan.Fence(0) - 40);
            EXPECT_LE(std::abs(man.x), std::max(man.y, 0.0)) << "position " << number << " stands in foul ground";
        }
    }
}

TEST(FieldView, TheBiggerParkIsDrawnWithItsFenceFartherOut) {
    demo::Outside outside;
    const auto shot = [&](int centre) {
        auto setup = demo::DemoSeasons().MakeSetup();
        setup->data.park.CFFence = static_cast<std::int16_t>(centre);
        frmGame game(setup, {}, 1, outside.Get());
        game.resize(1024, 768);
        game.show();
        auto* field = game.findChild<FieldView*>(QStringLiteral("fraField"));
        for (QObject* label : field->children())
            if (auto* widget = qobject_cast<QWidget*>(label)) widget->hide();
        return field->grab().toImage();
    };
    // How far down the middle one meets the first green of the grass.
    const auto grass = [](const QImage& picture) {
        for (int y = 0; y < picture.height(); ++y) {
            const QColor colour = picture.pixelColor(picture.width() / 2 + 3, y);
            if (colour.green() > colour.red() + 40 && colour.green() > 100) return y;
        }
        return -1;
    };
    const int near = grass(shot(380)), far = grass(shot(480));
    EXPECT_GT(far, 0);
    EXPECT_GT(near, far + 5);
}

}  // namespace
}  // namespace tarvane
