import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Dashboard
import CalorieCounter.Exercise
import CalorieCounter.Food
import CalorieCounter.Setup
import CalorieCounter.Tabs

// Draws a screen with its class's layout. The one place where the idiom counts: a screen whose
// geometry differs on a pad has a pad layout of its own; the others scale by Theme.unit.
Item {
    id: host
    required property ViewController screen

    anchors.fill: parent
    Component.onCompleted: layoutFor(screen)?.createObject(host, { screen: host.screen })

    function layoutFor(screen: ViewController): Component {
        if (screen instanceof MeasureUnitScreen) return measureUnitLayout
        if (screen instanceof EnterWtScreen) return enterWtLayout
        if (screen instanceof GoalWeightScreen) return goalWeightLayout
        if (screen instanceof GenderScreen) return genderLayout
        if (screen instanceof HeightScreen) return heightLayout
        if (screen instanceof BirthdayScreen) return birthdayLayout
        if (screen instanceof TodayScreen) return Theme.pad ? todayPadLayout : todayLayout
        if (screen instanceof LogScreen) return logLayout
        if (screen instanceof SearchFoodScreen) return searchFoodLayout
        if (screen instanceof FoodScreen) return foodLayout
        if (screen instanceof CustomEntryScreen) return customEntryLayout
        if (screen instanceof ExerciseScreen) return exerciseLayout
        if (screen instanceof BrowseExerciseScreen) return browseExerciseLayout
        if (screen instanceof MoreScreen) return Theme.pad ? morePadLayout : moreLayout
        return null  // the tab interface's own screen draws nothing
    }

    Component { id: measureUnitLayout; MeasureUnitLayout {} }
    Component { id: enterWtLayout; EnterWtLayout {} }
    Component { id: goalWeightLayout; GoalWeightLayout {} }
    Component { id: genderLayout; GenderLayout {} }
    Component { id: heightLayout; HeightLayout {} }
    Component { id: birthdayLayout; BirthdayLayout {} }
    Component { id: todayLayout; TodayLayout {} }
    Component { id: todayPadLayout; TodayPadLayout {} }
    Component { id: logLayout; LogLayout {} }
    Component { id: searchFoodLayout; SearchFoodLayout {} }
    Component { id: foodLayout; FoodLayout {} }
    Component { id: customEntryLayout; CustomEntryLayout {} }
    Component { id: exerciseLayout; ExerciseLayout {} }
    Component { id: browseExerciseLayout; BrowseExerciseLayout {} }
    Component { id: moreLayout; MoreLayout {} }
    Component { id: morePadLayout; MorePadLayout {} }
}
