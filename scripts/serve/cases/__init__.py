"""What a person does with the page, and what must come of it, a file for each part."""
from cases import network, parameters, pictures, out, others, hands  # in the order of their telling
from cases.common import cases
