var start = Frequency.floatMaximum.toFixed(0);
