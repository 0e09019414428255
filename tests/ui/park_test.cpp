#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>
#include <QWidget>

#include <cmath>

#include "base/tempfolder.h"
#include "ui/demo.h"
#include "ui/fieldview.h"
#include "ui/frmgame.h"
#include "ui/groundmap.h"

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

// A view from somewhere else: what is told of some men places everybody and the fence.
TEST(GroundMap, FollowsFromTheMenThatThePictureTells) {
    const ParkPlan plan;
    const auto view = [](FieldPoint ground) {
        const double depth = 1 + ground.y / 400 + ground.x / 3000;
        return FieldPoint{0.45 + (ground.x + 0.1 * ground.y) / depth / 700, 0.95 - ground.y / depth / 380};
    };
    constexpr int kWidth = 1600, kHeight = 900;
    Ballpark park;
    const auto twips = [&](double share, int pixels) { return static_cast<std::int32_t>(std::lround(share * pixels * 15)); };
    for (std::size_t i = 0; i < 9; ++i) {
        const FieldPoint at = view(plan.Fielder(static_cast<Position>(i + 1)));
        park.PosLeft[i] = twips(at.x, kWidth), park.PosTop[i] = twips(at.y, kHeight);
    }
    EXPECT_TRUE(KnownPlaces(Ballpark(), plan, kWidth, kHeight).empty());
    const auto map = GroundMap::Fit(KnownPlaces(park, plan, kWidth, kHeight));
    ASSERT_TRUE(map);
    for (const FieldPoint ground : {ParkPlan::Base(1), ParkPlan::Base(4), plan.FencePoint(-45), plan.FencePoint(10)}) {
        EXPECT_NEAR(map->OnPicture(ground).x, view(ground).x, 0.002);
        EXPECT_NEAR(map->OnPicture(ground).y, view(ground).y, 0.002);
    }
    park.PosLeft.fill(5000);
    park.PosTop.fill(5000);
    EXPECT_FALSE(GroundMap::Fit(KnownPlaces(park, plan, kWidth, kHeight))) << "nine men on one spot tell nothing";
}

TEST(FieldView, TheUsersPicturesOfParkAndPlayersAreShownWhereTheyAre) {
    const TempFolder folder;
    const QString file = QString::fromStdString((folder.Path() / "picture.png").string());
    QImage blue(320, 180, QImage::Format_RGB32);
    blue.fill(QColor(10, 20, 200));
    ASSERT_TRUE(blue.save(file));
    demo::Outside outside;
    for (const bool there : {true, false}) {
        auto setup = demo::DemoSeasons().MakeSetup();
        const std::string path = there ? file.toStdString() : (folder.Path() / "missing.png").string();
        setup->data.park.imagePath = path;
        for (Batter& batter : setup->data.team[Side::Visitor].roster.batters) batter.imagePath = path;
        frmGame game(setup, {}, 1, outside.Get());
        game.resize(1024, 768);
        game.show();
        auto* field = game.findChild<FieldView*>(QStringLiteral("fraField"));
        const QColor corner = field->grab().toImage().pixelColor(3, 3);
        EXPECT_EQ(corner == QColor(10, 20, 200), there);
        EXPECT_EQ(game.findChild<QLabel*>(QStringLiteral("lblVisitorPicture"))->isVisible(), there);
        EXPECT_FALSE(game.findChild<QLabel*>(QStringLiteral("lblHomePicture"))->isVisible()) << "its men have none";
        EXPECT_TRUE(outside.dialogs.warnings.empty());
    }
}

}  // namespace
}  // namespace tarvane
