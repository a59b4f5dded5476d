// It has no function that a host could call.

int unused_number = 1;
