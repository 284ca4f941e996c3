class Rules {
    constructor() {
        this.limit = 100;
    }
}
function Gain_changed() {
    Level.floatValue = new Rules().limit;
}
