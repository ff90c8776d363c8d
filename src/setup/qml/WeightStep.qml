import QtQuick
import CalorieCounter.Kit

// A step that asks for a weight: the question over a weight field with its unit.
WizardStep {
    id: step
    required property TextField field
    required property Label unitLabel

    UnitField {
        field: step.field
        unitLabel: step.unitLabel
    }
}
