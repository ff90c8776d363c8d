import QtQuick
import CalorieCounter.Tabs

// The More screen's texts, which its phone and pad layouts give to its labels.
QtObject {
    id: texts
    required property MoreScreen screen
    property list<QtObject> bindings: [
        Binding { target: texts.screen.lb1; property: "text"; value: texts.about },
        Binding { target: texts.screen.lb2; property: "text"; value: texts.data }
    ]

    readonly property string about:
        "Calorie Counter keeps a daily calorie budget for you. Book what you eat, from a catalogue "
        + "of more than 8,800 foods or as a number of calories you type, and what you burn, from "
        + "125 activities or as a number. The Today tab shows how much of the budget is left; the "
        + "Log tab steps back and forth through the days of your plan, and whatever you book goes "
        + "to the day it shows.\n\n"
        + "Your budget is worked out once, at set-up, from your goal weight, height, age and "
        + "gender, with a resting-energy formula for the measuring unit you chose (kilograms and "
        + "centimetres, or pounds, feet and inches). It is roughly what a body like yours uses in "
        + "a day at rest.\n\n"
        + "Food you book adds to the calories eaten that day. Exercise adds to the calories burned "
        + "and takes the same amount off the calories eaten, so the calories left grow with it."
    readonly property string data:
        "Your data stays on this device, in one file (food.db) in the app's private data folder, "
        + "with one setting beside it and a backup of each of the last seven days you opened the "
        + "app in backups/. Nothing is sent anywhere: there is no account and no network.\n\n"
        + "Food data: USDA National Nutrient Database for Standard Reference, Release 24 (SR24), "
        + "in the public domain. Calories are given for each food's first household portion."
}
