function Gain_changed() {
    Comment.stringValue = `gain ${Gain.floatValue}
        and more`;
}
