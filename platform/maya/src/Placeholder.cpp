// replaced by the host implementation
