function MaximumSize_changed() {
    MaximumSize.floatValue = MaximumSize.floatValue - 1;
}
