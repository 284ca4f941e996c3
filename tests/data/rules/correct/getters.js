// Objects may have getters and setters.
var view = {
    factor: 2,
    get wide() {
        return this.factor > 1;
    },
    set wide(isWide) {
        this.factor = isWide ? 2 : 1;
    }
};

function Mode_changed() {
    Span.floatValue = view.wide ? 200000 : 100000;
}
