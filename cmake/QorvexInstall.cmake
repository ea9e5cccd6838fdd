set(noop 1)
