#include "exercise/ExerciseScreen.h"

ExerciseScreen::ExerciseScreen(const QString& layoutName, QObject* parent) : ViewController(layoutName, parent) {
    setTitle("Exercise");
}
